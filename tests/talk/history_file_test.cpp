#include "tests/talk/talk.h"
#include "text/failure.h"

namespace {

using namespace talk;
using controls::Window;
using platform::Answer;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr auto file = "hist.dat";
constexpr std::size_t save_now = 5;

/// The history from one run to the next.
class KeptHistory : public Talk {
protected:
    KeptHistory() { open_history(); }

    [[nodiscard]] std::string content() const { return alice.files.content(file); }
    [[nodiscard]] std::vector<Row> rows()
    {
        std::vector<Row> all;
        for (int number = 1; number <= alice.history().count(); ++number) {
            all.push_back(alice.history().row(number));
        }
        return all;
    }
    void save() { alice.person.choose(form().mnuoptions, save_now); }
    [[nodiscard]] forms::HistoryFrm& form() { return alice.forms().historyfrm; }

    void start_with(std::string_view found)
    {
        alice.crash();
        alice.files.put(file, found);
        alice.start();
        office.settle();
    }
};

TEST_F(KeptHistory, ComesBackRowByRowWhateverTheKind)
{
    hear("BOB> lunch?\r\nI'm hungry");
    alice.person.answer(alice.popup(0), "yes");
    alice.person.send_to("Carl Dunn", "lunch, too?");
    hear("BOB> (To All) cake", bob_id, "[ALL]");
    alice.person.choose(alice.forms().menuform.autores, 0);
    hear("CARL DUNN> are you there?", carl_id);
    auto const before = rows();
    ASSERT_THAT(before, SizeIs(5));

    restart_alice();

    EXPECT_EQ(rows(), before);
    EXPECT_THAT(told(alice.history()),
                ElementsAre("From|Bob|lunch?\r\nI'm hungry", "Replied to|Bob|lunch?\r\nI'm hungry",
                            "To|Carl Dunn|lunch, too?", "From|Bob|(To All) cake",
                            "Auto Rep to|Carl Dunn|are you there?"));
}

TEST_F(KeptHistory, ShowsItsLastRowBehindAStart)
{
    hear("BOB> one");
    hear("CARL DUNN> two", carl_id);

    restart_alice();

    EXPECT_EQ(form().current, 2);
    EXPECT_EQ(alice.history().selected(), 2);
    EXPECT_EQ(form().message.text(), "CARL DUNN> two");
}

TEST_F(KeptHistory, ShowsASentRowRedBehindAStart)
{
    alice.person.send_to("Bob", "lunch?");

    restart_alice();

    EXPECT_EQ(form().message.text(), "ALICE MEYER> lunch?");
    EXPECT_THAT(painted(form().message, red), ElementsAre("ALICE MEYER> lunch?"));
}

TEST_F(KeptHistory, BringsAMessageOfAnyKindBackBehindAStart)
{
    hear("BOB> one");
    alice.person.answer(alice.popup(0), "yes");
    alice.person.send_to("Carl Dunn", "two");
    restart_alice();
    open_history();
    auto& window = alice.forms().popuplast;

    alice.person.double_click_history(1);
    EXPECT_EQ(window.message.text(), "BOB> one");
    EXPECT_FALSE(window.beensent.visible);
    alice.person.double_click_history(2);
    EXPECT_EQ(window.temp.text(), "yes");
    EXPECT_TRUE(window.beensent.visible);
    alice.person.double_click_history(3);
    EXPECT_EQ(alice.frmMain().messagetext.text(), "two");
}

TEST_F(KeptHistory, KeepsQuotesAndLosesLeadingBlanks)
{
    hear("BOB> he said \"no\"");
    hear("BOB>   three blanks");

    restart_alice();

    EXPECT_THAT(told(alice.history()),
                ElementsAre("From|Bob|he said \"no\"", "From|Bob|three blanks"));
}

TEST_F(KeptHistory, LosesALetterAtEachStartWhereAMessageHadNoHead)
{
    hear("lunch?");
    ASSERT_THAT(told(alice.history()), ElementsAre("From|Bob|unch?"));

    restart_alice();
    EXPECT_THAT(told(alice.history()), ElementsAre("From|Bob|nch?"));
    restart_alice();
    EXPECT_THAT(told(alice.history()), ElementsAre("From|Bob|ch?"));
}

TEST_F(KeptHistory, SurvivesAnEmptyMessage)
{
    hear("BOB> ");
    hear("");
    hear("BOB> one");

    restart_alice();

    EXPECT_THAT(told(alice.history()), ElementsAre("From|Bob|", "From|Bob|", "From|Bob|one"));
}

TEST_F(KeptHistory, SurvivesAReplyWithQuotes)
{
    hear("BOB> lunch?");
    alice.person.answer(alice.popup(0), "\"no\", I said");
    hear("BOB> why?");

    restart_alice();

    EXPECT_THAT(alice.history(), testing::ResultOf(told, SizeIs(3)));
    EXPECT_EQ(alice.history().row(2)[7], "\"no\", I said");
}

TEST_F(KeptHistory, IsNotWrittenDuringTheRun)
{
    hear("BOB> one");
    alice.person.send_to("Bob", "two");
    EXPECT_FALSE(alice.files.has(file));

    alice.restart();

    EXPECT_TRUE(alice.history().empty());
}

TEST_F(KeptHistory, IsWrittenByTheMenuToo)
{
    hear("BOB> one");

    save();

    EXPECT_THAT(content(), StartsWith(" 1 \r\n0,0,0\r\n\"20261115151802\",\"11/15/26 03:18 pm\","
                                      "\"From\",\"Bob\",\"BOB>\",\"BOB> one\","));
    alice.restart();
    EXPECT_THAT(told(alice.history()), ElementsAre("From|Bob|one"));
}

TEST_F(KeptHistory, HoldsAHundredRowsAtMost)
{
    for (int number = 1; number <= 100; ++number) {
        alice.history().add(row_from("Bob", "BOB>", std::to_string(number)));
    }
    alice.person.send_to("Bob", "one more");

    restart_alice();

    EXPECT_THAT(content(), StartsWith(" 100 \r\n"));
    EXPECT_EQ(alice.history().count(), 100);
    EXPECT_EQ(alice.history().row(1)[5], "2");
    EXPECT_EQ(last_row(alice)[5], "one more");
}

TEST_F(KeptHistory, OfMoreThanAHundredRowsIsTrimmedWhenItIsRead)
{
    for (int number = 1; number <= 100; ++number) {
        alice.history().add(row_from("Bob", "BOB>", std::to_string(number)));
    }
    save();
    auto long_file = content();
    auto const first = long_file.find("\"2026");
    auto const second = long_file.find("\"2026", first + 1);
    long_file.insert(second, long_file.substr(first, second - first));
    long_file.replace(0, 5, " 101 ");

    start_with(long_file);

    EXPECT_EQ(alice.history().count(), 100);
    EXPECT_EQ(form().current, 100);
    EXPECT_EQ(content(), long_file);
}

TEST_F(KeptHistory, ThatWasClearedIsBackAtTheNextStart)
{
    hear("BOB> one");
    save();
    auto const saved = content();
    alice.boxes.will_answer(Answer::yes);
    alice.person.choose(form().mnuoptions, 4);
    ASSERT_TRUE(alice.history().empty());

    save();
    EXPECT_EQ(content(), saved);
    restart_alice();

    EXPECT_THAT(told(alice.history()), ElementsAre("From|Bob|one"));
}

TEST_F(KeptHistory, KeepsItsOptions)
{
    hear("BOB> one");
    alice.person.choose(form().mnuoptions, 0);
    alice.person.choose(form().mnuoptions, 2);

    restart_alice();

    EXPECT_THAT(content(), StartsWith(" 1 \r\n1,0,1\r\n"));
    EXPECT_EQ(form().ontop.value(), 1);
    EXPECT_EQ(form().minmain.value(), 0);
    EXPECT_EQ(form().anchor.value(), 1);
    EXPECT_TRUE(form().mnuoptions[0].checked);
    EXPECT_FALSE(form().mnuoptions[1].checked);
    EXPECT_TRUE(form().mnuoptions[2].checked);
    EXPECT_EQ(form().window.stacking, Window::Stacking::on_top);
}

TEST_F(KeptHistory, WithoutKeepOnTopLeavesTheWindowWhereItIs)
{
    start_with(" 0 \r\n0,1,0\r\n--END--\r\n\r\n");

    EXPECT_EQ(form().window.stacking, Window::Stacking::usual);
    EXPECT_EQ(form().minmain.value(), 1);
    EXPECT_TRUE(form().mnuoptions[1].checked);
}

TEST_F(KeptHistory, OfNoRowsShowsNothing)
{
    start_with(" 0 \r\n0,0,0\r\n--END--\r\n\r\n");

    EXPECT_TRUE(alice.history().empty());
    EXPECT_EQ(form().message.text(), "");
    EXPECT_EQ(form().current, 0);
}

TEST_F(KeptHistory, ThatIsMissingMeansNoRowsAndTheUsualOptions)
{
    restart_alice();

    EXPECT_FALSE(alice.files.has(file));
    EXPECT_TRUE(alice.history().empty());
    EXPECT_EQ(form().ontop.value(), 0);
    EXPECT_EQ(form().minmain.value(), 0);
    EXPECT_EQ(form().anchor.value(), 0);
}

TEST_F(KeptHistory, ThatCannotBeWrittenByTheMenuEndsTheProgram)
{
    hear("BOB> one");
    alice.files.unwritable = {file};

    save();

    EXPECT_FALSE(alice.running());
    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(alice.status(), 1);
}

/// A file that is not what it should be.
class DamagedHistory : public KeptHistory {
protected:
    DamagedHistory()
    {
        hear("BOB> one");
        hear("BOB> two \"quoted\"\r\nlines");
        alice.person.send_to("Bob", "three");
        save();
        whole = content();
    }

    /// The start has gone on behind the load, without a word.
    void expect_a_start()
    {
        EXPECT_TRUE(alice.running()) << alice.report();
        EXPECT_TRUE(alice.frmMain().Timer1.enabled());
        EXPECT_TRUE(alice.frmMain().window.visible());
        EXPECT_FALSE(alice.forms().loading.window.visible());
        EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    }

    std::string whole;
};

TEST_F(DamagedHistory, KeepsTheRowsBeforeTheDamageAndLetsTheStartGoOn)
{
    auto const cut = whole.substr(0, whole.find("quoted"));

    start_with(cut);

    expect_a_start();
    EXPECT_THAT(told(alice.history()), ElementsAre("From|Bob|one"));
    EXPECT_EQ(content(), cut);
}

TEST_F(DamagedHistory, ShowsNoRowAndAnyCanBePicked)
{
    start_with(whole.substr(0, whole.find("--END--") - 10));
    EXPECT_EQ(form().current, 0);
    EXPECT_EQ(form().message.text(), "");

    open_history();
    alice.enter([this] { form().ListView1.double_clicked.run(); });
    EXPECT_FALSE(alice.forms().popuplast.window.visible());
    alice.person.double_click_history(2);

    EXPECT_EQ(alice.forms().popuplast.message.text(), "BOB> two \"quoted\"\r\nlines");
}

TEST_F(DamagedHistory, TakesTheNextMessages)
{
    start_with("nonsense");
    expect_a_start();

    hear("BOB> four");

    EXPECT_THAT(told(alice.history()), ElementsAre("From|Bob|four"));
    EXPECT_EQ(form().message.text(), "BOB> four");
}

TEST_F(DamagedHistory, WithoutARowThatCanBeReadStaysOnDisk)
{
    start_with(" 3 \r\n0,0,0\r\nnonsense");
    expect_a_start();

    alice.person.leave();

    EXPECT_EQ(content(), " 3 \r\n0,0,0\r\nnonsense");
}

TEST_F(DamagedHistory, CutAtAnyByteIsLoadedOrLeftAndNeverTouched)
{
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        auto const cut = whole.substr(0, size);
        alice.files.put(file, cut);

        bool const loaded = text::attempt([this] { form().loadbtn.run(); });

        ASSERT_EQ(content(), cut);
        ASSERT_EQ(loaded, size >= whole.find("--END--")) << size;
        ASSERT_LE(alice.history().count(), 3) << size;
    }
}

TEST_F(DamagedHistory, WithAWrongCountIsLoadedAsFarAsItGoes)
{
    for (std::string const count : {"4", "100", "2147483647", "99999999999999999999"}) {
        auto const wrong = " " + count + whole.substr(2);

        start_with(wrong);

        expect_a_start();
        EXPECT_EQ(content(), wrong);
        EXPECT_EQ(alice.history().count(), count.size() > 10 ? 0 : 3) << count;
    }
}

TEST_F(DamagedHistory, OfBinaryContentLetsTheStartGoOn)
{
    sim::Chance chance(5);
    for (int round = 0; round < 50; ++round) {
        std::string noise = round % 2 == 0 ? " 3 \r\n0,0,0\r\n\"" : "";
        for (int byte = 0; byte < 2000; ++byte) {
            noise += static_cast<char>(chance.below(256));
        }

        start_with(noise);

        expect_a_start();
        EXPECT_EQ(content(), noise);
        EXPECT_TRUE(alice.history().empty());
    }
}

TEST_F(DamagedHistory, ThatCannotBeReadLetsTheStartGoOn)
{
    alice.files.unreadable = {file};

    start_with(whole);

    expect_a_start();
    EXPECT_TRUE(alice.history().empty());
}

TEST_F(DamagedHistory, WithOptionsThatAreNoneKeepsTheUsualOnes)
{
    auto wrong = whole;
    wrong.replace(wrong.find("0,0,0"), 5, "1,0,x");

    start_with(wrong);

    expect_a_start();
    EXPECT_EQ(form().ontop.value(), 0);
    EXPECT_TRUE(alice.history().empty());
}

} // namespace
