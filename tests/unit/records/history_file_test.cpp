#include "records/history_file.h"
#include "text/failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using controls::Table;
using records::history_file::Reader;
using records::history_file::written;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

Table::Row from_bob(std::string_view text, std::string_view head = "BOB>")
{
    Table::Row row{"20261115151802", "11/15/26 03:18 pm", "From", "Bob"};
    row[4] = head;
    row[5] = text;
    row[6] = "[ROOM12\\ALICE]";
    row[9] = "Bob Msg 03:18 pm";
    return row;
}

Table::Row to_bob(std::string_view text)
{
    Table::Row row{"20261115151803", "11/15/26 03:18 pm", "To", "Bob"};
    row[5] = text;
    row[7] = "0";
    row[8] = "1";
    return row;
}

Table::Row answered(std::string_view kind, std::string_view answer)
{
    auto row = from_bob("Lunch?");
    row[2] = kind;
    row[7] = answer;
    return row;
}

Table table_of(std::vector<Table::Row> const& rows)
{
    Table table;
    for (auto const& row : rows) {
        table.add(row);
    }
    return table;
}

struct Loaded {
    std::vector<Table::Row> rows;
    bool whole = false;
};

/// Reads a file as the history does: as many rows as its first line tells.
Loaded read(std::string_view file)
{
    Loaded loaded;
    loaded.whole = text::attempt([&] {
        Reader reader(file);
        int const count = reader.count();
        static_cast<void>(reader.options());
        for (int number = 0; number < count; ++number) {
            loaded.rows.push_back(reader.row());
        }
    });
    return loaded;
}

std::vector<Table::Row> saved_and_loaded(std::vector<Table::Row> const& rows)
{
    auto loaded = read(written(table_of(rows), {}));
    EXPECT_TRUE(loaded.whole);
    return loaded.rows;
}

std::string text_behind_a_save(Table::Row const& row)
{
    return saved_and_loaded({row}).at(0).at(5);
}

/// Two rows, one of them over three lines.
std::string const two_rows =
    " 2 \r\n"
    "1,0,1\r\n"
    "\"20261115151802\",\"11/15/26 03:18 pm\",\"From\",\"Bob\",\"BOB>\","
    "\"BOB> He said \x04no\x04\r\nand\r\nleft\",\"[ROOM12\\ALICE]\",\"\",\"\","
    "\"Bob Msg 03:18 pm\"\r\n"
    "\"20261115151803\",\"11/15/26 03:18 pm\",\"To\",\"Bob\",\"\",\" "
    "Why?\",\"\",\"0\",\"1\",\"\"\r\n"
    "--END--\r\n"
    "\r\n";
std::vector<Table::Row> const the_two{from_bob("He said \"no\"\r\nand\r\nleft"), to_bob("Why?")};

TEST(HistoryFile, IsWrittenToTheByte)
{
    EXPECT_EQ(written(table_of(the_two), {.ontop = 1, .minmain = 0, .anchor = 1}), two_rows);
}

TEST(HistoryFile, IsReadAsItWasWritten)
{
    auto const loaded = read(two_rows);

    EXPECT_TRUE(loaded.whole);
    EXPECT_EQ(loaded.rows, the_two);
}

TEST(HistoryFile, OfNoRowsIsACountOfNoughtAndItsEnd)
{
    std::string const file = " 0 \r\n0,0,0\r\n--END--\r\n\r\n";

    EXPECT_EQ(written({}, {}), file);
    EXPECT_TRUE(read(file).whole);
    EXPECT_THAT(read(file).rows, IsEmpty());
}

TEST(HistoryFile, KeepsRowsOfEveryKind)
{
    std::vector<Table::Row> const rows{from_bob("Lunch?"), to_bob("Lunch?"),
                                       answered("Replied to", "yes"),
                                       answered("Auto Rep to", "I'm in a meeting")};

    EXPECT_EQ(saved_and_loaded(rows), rows);
}

TEST(HistoryFile, PutsTheHeadBeforeTheTextOfEveryKindSinceNoneIsCalledToInSmallLetters)
{
    auto small = to_bob("Why?");
    small[2] = "to";

    EXPECT_THAT(written(table_of({to_bob("Why?")}), {}), HasSubstr(",\" Why?\","));
    EXPECT_THAT(written(table_of({small}), {}), HasSubstr(",\"Why?\","));
}

TEST(HistoryFile, TrimsBlanksAndNothingElse)
{
    EXPECT_EQ(text_behind_a_save(from_bob("  two in front")), "two in front");
    EXPECT_EQ(text_behind_a_save(from_bob("two behind  ")), "two behind");
    EXPECT_EQ(text_behind_a_save(from_bob("\t\r\nkept\r\n\t")), "\t\r\nkept\r\n\t");
    EXPECT_EQ(text_behind_a_save(to_bob("  \tkept\r\n  ")), "\tkept\r\n");
}

TEST(HistoryFile, TakesALetterOfATextWithoutAHeadAtEachSave)
{
    auto row = from_bob("unch at noon?", "");
    std::vector<std::string> texts;
    for (int save = 0; save < 3; ++save) {
        row = saved_and_loaded({row}).at(0);
        texts.push_back(row[5]);
    }

    EXPECT_THAT(texts, ElementsAre("nch at noon?", "ch at noon?", "h at noon?"));
}

TEST(HistoryFile, TakesNoLetterOfARowThatWasSent)
{
    EXPECT_EQ(text_behind_a_save(to_bob("Lunch?")), "Lunch?");
}

TEST(HistoryFile, AnEmptyTextCostsNothing)
{
    // Behind the trim there is one character less than the head and its blank have.
    EXPECT_EQ(text_behind_a_save(from_bob("")), "");
    EXPECT_EQ(text_behind_a_save(from_bob("   ")), "");
    EXPECT_EQ(text_behind_a_save(from_bob("", "")), "");
    EXPECT_EQ(text_behind_a_save(from_bob("x", "")), "");
    EXPECT_EQ(text_behind_a_save(to_bob("")), "");
}

TEST(HistoryFile, AHeadThatBeginsWithABlankCostsTheTextALetter)
{
    EXPECT_EQ(text_behind_a_save(from_bob("Lunch?", " BOB>")), "unch?");
}

TEST(HistoryFile, StoresAQuoteOfTheTextAsCharacterFour)
{
    EXPECT_THAT(written(table_of({from_bob("\"a\"")}), {}), HasSubstr(",\"BOB> \x04"
                                                                      "a\x04\","));
    EXPECT_EQ(text_behind_a_save(from_bob("\"a\",\"b\"\r\n\"")), "\"a\",\"b\"\r\n\"");
}

TEST(HistoryFile, AQuoteInTheHeadStaysRawInBothColumns)
{
    auto const row = from_bob("Lunch?", "BOB \"THE\" B>");

    EXPECT_THAT(written(table_of({row}), {}),
                HasSubstr(",\"BOB \"THE\" B>\",\"BOB \"THE\" B> Lunch?\","));
    EXPECT_THAT(saved_and_loaded({row}), ElementsAre(row));
}

TEST(HistoryFile, AQuoteInAnAnswerStaysRawAndCostsNoRow)
{
    std::vector<Table::Row> const rows{answered("Replied to", "he said \"no\", \"never\"\r\n\""),
                                       from_bob("and then?")};

    EXPECT_THAT(written(table_of(rows), {}), HasSubstr(",\"he said \"no\", \"never\"\r\n\"\","));
    EXPECT_EQ(saved_and_loaded(rows), rows);
}

TEST(HistoryFile, AQuoteInTheCaptionStaysRawAndCostsNoRow)
{
    auto row = from_bob("Lunch?");
    row[3] = "Bob \"B\"";
    row[9] = "Bob \"B\" Msg 03:18 pm\"";

    EXPECT_THAT(saved_and_loaded({row, row}), ElementsAre(row, row));
}

TEST(HistoryFile, ItsCountIsTheLeadingNumberOfItsFirstLine)
{
    EXPECT_EQ(Reader(" 12 \r\n").count(), 12);
    EXPECT_EQ(Reader("3").count(), 3);
    EXPECT_EQ(Reader("2 rows\r\n").count(), 2);
    EXPECT_EQ(Reader("rows\r\n").count(), 0);
    EXPECT_EQ(Reader(" -3 \r\n").count(), -3);
    EXPECT_THROW(static_cast<void>(Reader(" 99999999999 \r\n").count()), text::Failure);
    EXPECT_THROW(static_cast<void>(Reader("").count()), text::Failure);
}

TEST(HistoryFile, ItsOptionsAreThreeNumbersOfOneLine)
{
    auto const options = Reader("1,0,1\r\n").options();
    EXPECT_EQ(options.ontop, 1);
    EXPECT_EQ(options.minmain, 0);
    EXPECT_EQ(options.anchor, 1);
    for (auto const* line : {"1,0\r\n1", "1,0,x\r\n", "\r\n", "1;0;1\r\n", "1,0,99999\r\n"}) {
        EXPECT_THROW(static_cast<void>(Reader(line).options()), text::Failure) << line;
    }
}

TEST(HistoryFile, IsReadByItsCountAndNotToItsEndMark)
{
    auto file = two_rows;
    file[1] = '1';
    EXPECT_TRUE(read(file).whole);
    EXPECT_THAT(read(file).rows, ElementsAre(the_two[0]));

    auto const without_mark = two_rows.substr(0, two_rows.find("--END--"));
    EXPECT_TRUE(read(without_mark).whole);
    EXPECT_EQ(read(without_mark).rows, the_two);
}

TEST(HistoryFile, ThatTellsTooManyRowsIsReadToItsLastOne)
{
    for (std::string const count : {"3", "101", "2147483647"}) {
        auto const file = " " + count + two_rows.substr(2);

        EXPECT_FALSE(read(file).whole) << count;
        EXPECT_EQ(read(file).rows, the_two) << count;
    }
}

TEST(HistoryFile, ThatTellsNoRowsOrLessIsRead)
{
    for (std::string const count : {"0", "-1", "-2147483648", "", "x"}) {
        auto const file = " " + count + two_rows.substr(2);

        EXPECT_TRUE(read(file).whole) << count;
        EXPECT_THAT(read(file).rows, IsEmpty()) << count;
    }
}

TEST(HistoryFile, CutAtAnyByteGivesTheRowsThatAreWhole)
{
    std::size_t const first_row_end = two_rows.find("pm\"\r\n\"") + 5;
    std::size_t const second_row_end = two_rows.find("--END--");
    for (std::size_t size = 0; size < two_rows.size(); ++size) {
        auto const loaded = read(std::string_view(two_rows).substr(0, size));

        auto const complete =
            (size >= first_row_end ? 1U : 0U) + (size >= second_row_end ? 1U : 0U);
        ASSERT_EQ(loaded.rows.size(), complete) << size;
        EXPECT_EQ(loaded.whole, complete == the_two.size()) << size;
        for (std::size_t row = 0; row < complete; ++row) {
            EXPECT_EQ(loaded.rows[row], the_two[row]) << size;
        }
    }
}

TEST(HistoryFile, WithAnyByteChangedGivesRowsOrAFailure)
{
    for (std::size_t place = 0; place < two_rows.size(); ++place) {
        auto file = two_rows;
        for (int byte = 0; byte < 256; ++byte) {
            file[place] = static_cast<char>(byte);
            auto const loaded = read(file);
            ASSERT_LE(loaded.rows.size(), the_two.size()) << place << ": " << byte;
        }
    }
}

TEST(HistoryFile, OfAnotherMakeIsRefusedAtItsFirstRow)
{
    for (std::string const rows : {"20261115151802,11/15/26 03:18 pm,From,Bob\r\n", "\r\n\r\n",
                                   "\"", "\"\"\r\n", "\"a\",\"b\"\r\n", "\"a\" , \"b\"\r\n"}) {
        auto const loaded = read(" 1 \r\n0,0,0\r\n" + rows);
        EXPECT_FALSE(loaded.whole) << rows;
        EXPECT_THAT(loaded.rows, IsEmpty()) << rows;
    }
    for (std::string const& file : {std::string(100'000, '"'), std::string(100'000, '\0'),
                                    std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)}) {
        EXPECT_THAT(read(file).rows, IsEmpty());
    }
}

} // namespace
