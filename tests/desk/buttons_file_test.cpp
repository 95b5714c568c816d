#include "tests/desk/buttons_flows.h"

#include <ctime>

namespace {

using namespace desk;
using namespace flows;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::string const default_file = "\"Call on 1\",\"You have a call on line 1\",\"0\"\r\n"
                                 "\"Call on 2\",\"You have a call on line 2\",\"0\"\r\n"
                                 "\"Spouse Calling\",\"Your spouse is on the phone\",\"1\"\r\n"
                                 "\"Busy?\",\"Are you busy?\",\"1\"\r\n"
                                 "\"See me\",\"Please come see me\",\"0\"\r\n"
                                 "\"Lunch?\",\"What would you like for lunch?\",\"0\"\r\n"
                                 "\"Ready?\",\"Are you ready?\",\"0\"\r\n"
                                 "\"Meeting Starting\",\"The meeting is starting now.\",\"0\"\r\n"
                                 "\"X is here\",\"? is here to see you.\",\"0\"\r\n"
                                 "\"Call Holding\",\"You have a call holding\",\"1\"\r\n"
                                 "\"\",\"\",\"0\"\r\n"
                                 "\"\",\"\",\"0\"\r\n"
                                 "\"OK\",\"OK\",\"1\"\r\n"
                                 "\"Take message\",\"Please take a message\",\"0\"\r\n"
                                 "\"Get number\",\"Get a phone number\",\"0\"\r\n"
                                 "\"Will call back\",\"Tell them I will call back\",\"1\"\r\n"
                                 "\"At my desk\",\"I'm at my desk\",\"1\"\r\n"
                                 "\"On a call\",\"I'm on a call\",\"1\"\r\n"
                                 "\"Yes\",\"Yes\",\"1\"\r\n"
                                 "\"No\",\"No\",\"1\"\r\n"
                                 "\"Thanks\",\"Thank you\",\"1\"\r\n"
                                 "\"\",\"\",\"0\"\r\n"
                                 "\"\",\"\",\"0\"\r\n"
                                 "\"\",\"\",\"0\"\r\n";

class ButtonsFile : public Buttons {
protected:
    /// All that a load sets, row by row.
    [[nodiscard]] Lines loaded()
    {
        Lines rows;
        for (std::size_t number = 1; number <= 24; ++number) {
            rows.push_back(caption(number).text() + "|" + text(number).text() + "|" +
                           std::to_string(at_once(number).value()));
        }
        return rows;
    }
    /// Row 1 of the table, the first of the main window, as this line leaves it.
    [[nodiscard]] std::string loaded_from(std::string_view line)
    {
        alice.files.put("buttons.txt", buttons_file(1, line));
        alice.enter([this] { alice.settings().loadbuttons.run(); });
        return loaded().front();
    }
    void expect_fatal_start(std::string_view file)
    {
        alice.files.put("buttons.txt", file);
        alice.journal.switch_on();

        start_alice();

        EXPECT_EQ(alice.report(), "Input past end of file");
        EXPECT_EQ(alice.status(), 1);
        EXPECT_THAT(alice.boxes.shown(), IsEmpty());
        EXPECT_THAT(alice.journal.lines(), Not(testing::Contains("read settings.txt")));
        EXPECT_EQ(this->file(), file);
    }
};

TEST_F(ButtonsFile, IsWrittenWithADefaultTableWhenThereIsNone)
{
    open();

    EXPECT_EQ(file(), default_file + "\r\n");
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

TEST_F(ButtonsFile, IsSavedWithABareThirdFieldAndWithoutTheLineMore)
{
    open();

    in_settings([this] { save(); });

    auto saved = default_file;
    for (auto const* flag : {"\"0\"\r\n", "\"1\"\r\n"}) {
        std::string const quoted = flag;
        for (auto place = saved.find(quoted); place != saved.npos; place = saved.find(quoted)) {
            saved.replace(place, 3, quoted.substr(1, 1));
        }
    }
    EXPECT_THAT(saved, StartsWith("\"Call on 1\",\"You have a call on line 1\",0\r\n"));
    EXPECT_THAT(saved, EndsWith("\"\",\"\",0\r\n\"\",\"\",0\r\n"));
    EXPECT_EQ(file(), saved);
}

TEST_F(ButtonsFile, LoadsAlikeInBothForms)
{
    open();
    auto const from_default = loaded();
    in_settings([this] { save(); });

    restart_alice();

    EXPECT_EQ(loaded(), from_default);
    EXPECT_EQ(loaded().at(2), "Spouse Calling|Your spouse is on the phone|1");
    EXPECT_EQ(loaded().at(13), "Take message|Please take a message|0");
}

TEST_F(ButtonsFile, GivesEachRowItsPlace)
{
    Lines lines;
    for (int row = 1; row <= 24; ++row) {
        auto const number = std::to_string(row);
        lines.push_back("\"c" + number + "\",\"m" + number + "\"," + (row % 3 == 0 ? "1" : "0"));
    }
    open_with(buttons_file(lines));

    for (std::size_t row = 1; row <= 24; ++row) {
        auto const number = std::to_string(row);
        EXPECT_EQ(loaded().at(row - 1),
                  "c" + number + "|m" + number + "|" + (row % 3 == 0 ? "1" : "0"));
        if (row <= 12) {
            EXPECT_EQ(button(row).caption, "c" + number);
            EXPECT_EQ(button(row).background, row % 3 == 0 ? green : yellow) << row;
        } else {
            int windows = 0;
            for_each_answer(row, [&](controls::Button const& answer) {
                ++windows;
                EXPECT_EQ(answer.caption, "c" + number);
                EXPECT_EQ(answer.background, row % 3 == 0 ? green : yellow) << row;
                EXPECT_TRUE(answer.enabled);
            });
            EXPECT_EQ(windows, 11);
        }
    }
}

TEST_F(ButtonsFile, HasFlagsThatCountAsTheirLeadingNumber)
{
    open();

    EXPECT_EQ(loaded_from(R"("c","m",1x)"), "c|m|1");
    EXPECT_EQ(loaded_from(R"("c","m","1x")"), "c|m|1");
    EXPECT_EQ(loaded_from(R"("c","m", 1)"), "c|m|1");
    EXPECT_EQ(loaded_from(R"("c","m",yes)"), "c|m|0");
    EXPECT_EQ(loaded_from(R"("c","m",)"), "c|m|0");
    EXPECT_EQ(loaded_from(R"("c","m","")"), "c|m|0");
    EXPECT_EQ(loaded_from(R"("c","m",x1)"), "c|m|0");
}

TEST_F(ButtonsFile, IsReadByFields)
{
    open();

    EXPECT_EQ(loaded_from(R"(See me,Please come,1)"), "See me|Please come|1");
    EXPECT_EQ(loaded_from(R"(  "See me" ,   "Now, please" ,1)"), "See me|Now, please|1");
    EXPECT_EQ(loaded_from("\"See\r\nme\",\"Two\r\nlines\",1"), "See\r\nme|Two\r\nlines|1");
    EXPECT_EQ(loaded_from("See me\r\nPlease come\r\n1"), "See me|Please come|1");
    EXPECT_EQ(loaded_from("\"caf\xE9\",\"\xC4pfel\",1"), "caf\xE9|\xC4pfel|1");
}

TEST_F(ButtonsFile, CutsAPlainTextAtItsCommaAndShiftsAllBehindIt)
{
    alice.files.put("buttons.txt", buttons_file(1, R"(Now, please,"Come",1)"));

    start_alice();

    EXPECT_EQ(loaded().at(0), "Now|please|0");
    EXPECT_EQ(loaded().at(1), "1||0");
}

TEST_F(ButtonsFile, NeedsNoLineEndBehindItsLastRow)
{
    auto whole = buttons_file(24, R"("Bye","Good bye",1)");
    whole.resize(whole.size() - 2);

    open_with(whole);

    EXPECT_EQ(loaded().back(), "Bye|Good bye|1");
}

TEST_F(ButtonsFile, IsNotReadBeyondItsLastRow)
{
    auto const file = buttons_file(24, R"("Bye","Good bye",1)") + "\"more\",\"\r\n,,,";

    open_with(file);

    EXPECT_EQ(loaded().back(), "Bye|Good bye|1");
    EXPECT_EQ(this->file(), file);
}

TEST_F(ButtonsFile, WithOneRowTooFewEndsTheStartBeforeAnyHandler)
{
    expect_fatal_start(sim::lines(Lines(23, R"("c","m",0)")));
}

TEST_F(ButtonsFile, WithNothingInItEndsTheStart)
{
    expect_fatal_start("");
}

TEST_F(ButtonsFile, WithoutItsLastFlagEndsTheStart)
{
    expect_fatal_start(sim::lines(Lines(23, R"("c","m",0)")) + R"("c","m")");
}

TEST_F(ButtonsFile, WithAQuoteThatIsNeverClosedEndsTheStart)
{
    expect_fatal_start(buttons_file(1, R"(c,"m,1)").substr(0, 8));
}

TEST_F(ButtonsFile, WithTooFewRowsEndsTheProgramAtCancelToo)
{
    open();

    in_settings([this] {
        alice.files.put("buttons.txt", "\"c\",\"m\",0\r\n");
        cancel();
    });

    EXPECT_EQ(alice.report(), "Input past end of file");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(ButtonsFile, OnAReadOnlyDiskEndsTheProgramAtSave)
{
    open();
    auto const before = file();

    in_settings([this] {
        alice.files.unwritable = {"buttons.txt"};
        save();
    });

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(file(), before);
}

TEST_F(ButtonsFile, OnAFullDiskEndsTheProgramAtSave)
{
    open();

    in_settings([this] {
        fill_text(5, std::string(1'000, 'x'));
        alice.files.space = 300;
        save();
    });

    EXPECT_EQ(alice.report(), "Disk full");
    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(file(), Not(HasSubstr(std::string(1'000, 'x'))));
}

TEST_F(ButtonsFile, OnAFullDiskEndsTheStartThatWouldMakeIt)
{
    alice.files.space = 300;

    start_alice();

    EXPECT_EQ(alice.report(), "Disk full");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(ButtonsFile, IsAllThatALoadTouches)
{
    open();
    alice.journal.switch_on();

    alice.enter([this] { alice.settings().loadbuttons.run(); });

    EXPECT_THAT(alice.journal.lines(), ElementsAre("read buttons.txt"));
    EXPECT_THAT(sent_by(alice), IsEmpty());
}

TEST_F(ButtonsFile, MayBeNonsenseOfManyFields)
{
    std::string nonsense;
    for (int byte = 0; byte < 100'000; ++byte) {
        nonsense += static_cast<char>(byte * 7919 >> 3);
    }

    open_with(nonsense);

    EXPECT_TRUE(alice.running());
    EXPECT_EQ(file(), nonsense);
}

TEST_F(ButtonsFile, MayHoldMegabytesInARowAndBehindTheLast)
{
    std::string const large(4'000'000, 'x');
    auto const before = std::clock();

    open_with(buttons_file(13, "\"" + large + "\",\"" + large + "\",1") + large);

    EXPECT_EQ(caption(13).text(), large);
    EXPECT_LT((std::clock() - before) / CLOCKS_PER_SEC, 20);
}

TEST_F(ButtonsFile, SavesAnApostropheForADoubleQuoteInAMessage)
{
    open();

    in_settings([this] {
        fill_text(5, "Say \"hi\", \"please\"");
        save();
    });

    EXPECT_THAT(file(), HasSubstr("\"See me\",\"Say 'hi', 'please'\",0\r\n"));
    EXPECT_EQ(text(5).text(), "Say 'hi', 'please'");
}

TEST_F(ButtonsFile, PutsTheApostropheIntoTheBoxItself)
{
    open();
    text(24).set_text("\"");

    alice.enter([this] { alice.settings().SAVEBUTTONS.run(); });

    EXPECT_EQ(text(24).text(), "'");
}

TEST_F(ButtonsFile, SavesADoubleQuoteInACaptionAsItStandsAndReadsItBackCut)
{
    open();

    in_settings([this] {
        fill_caption(5, "See \"me\"");
        save();
    });

    EXPECT_THAT(file(), HasSubstr("\"See \"me\"\",\"Please come see me\",0\r\n"));
    EXPECT_EQ(button(5).caption, "See ");
    EXPECT_EQ(text(5).text(), "Please come see me");
}

} // namespace
