#include "tests/talk/talk.h"

namespace {

using namespace talk;
using namespace std::chrono_literals;
using platform::Answer;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr auto mirror = "logs/logtemp.txt";
constexpr auto shutdown_row = "Vexlo IM shutdown correctly.\t\r\n---";
constexpr auto start_row = "Vexlo IM.\t\r\n---";

/// The rows of the log and their mirror on disk.
class Log : public Talk {
protected:
    void expect_last_row_mirrored(std::string_view row)
    {
        EXPECT_EQ(alice.log().back(), row);
        EXPECT_EQ(alice.files.content(mirror), sim::lines(alice.log()));
    }

    void fill(int rows)
    {
        auto& list = alice.forms().log.lstMessages;
        while (list.count() < rows) {
            list.add("row " + std::to_string(list.count()));
        }
    }

    /// A program that finds this mirror, up to the end of its start.
    void start_with(std::string_view found)
    {
        alice.crash();
        alice.files.put(mirror, found);
        alice.start();
        office.settle();
        alice.clock.set(moment);
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(Log, IsMirroredBehindAReceivedMessage)
{
    hear("BOB> one\r\ntwo");

    expect_last_row_mirrored(logged("Msg from BOB", "BOB> one\r\ntwo"));
}

TEST_F(Log, IsMirroredBehindASentMessage)
{
    alice.person.send_to("Bob", "one");

    expect_last_row_mirrored(logged("Msg to   BOB", "one"));
}

TEST_F(Log, IsMirroredBehindAMessageToAll)
{
    alice.person.tick_all();
    alice.person.send("one");

    expect_last_row_mirrored(logged("Msg to   ALL", "ALICE MEYER> (To All) one"));
}

TEST_F(Log, IsMirroredBehindAMessageToAGroup)
{
    frmMain.List1.add("Team" + std::string(30, ' ') + "1");
    alice.person.open_tab(1);
    alice.person.pick_group("Team");

    alice.person.send("one");

    expect_last_row_mirrored(logged("Msg to   TEAM", "one"));
}

TEST_F(Log, IsMirroredBehindAForward)
{
    hear("BOB> one");
    alice.person.click(alice.popup(0), alice.popup(0).fwd);
    auto const draft = frmMain.messagetext.text();

    alice.person.send_to("Carl Dunn", "");

    expect_last_row_mirrored(logged("Fwd to   CARL DUNN", draft));
}

TEST_F(Log, IsMirroredBehindAReply)
{
    hear("BOB> one");

    alice.person.answer(alice.popup(0), "two");

    expect_last_row_mirrored(logged("Msg to   BOB", "BOB> one\r\nALICE MEYER> two"));
}

TEST_F(Log, IsMirroredBehindALossOfTheNetworkAndItsReturn)
{
    alice.unplug();
    frmMain.statustext.set_caption("Network Error");
    office.run_for(5s);
    expect_last_row_mirrored(logged("Network Error No route to host."));

    alice.plug_in();
    office.run_for(5s);
    expect_last_row_mirrored(logged("Network Connection Restored"));
}

TEST_F(Log, IsMirroredBehindASaveOfTheSettings)
{
    auto& settings = alice.settings();
    settings.window.wait_until_hidden.attach([&] { settings.savebtn.click(); });

    alice.person.choose(alice.forms().menuform.toolsmenu, 0);

    expect_last_row_mirrored(logged(" Settings changed and saved."));
}

TEST_F(Log, HasNoRowOfWhatAnAbsentUsersProgramAnswers)
{
    alice.person.choose(alice.forms().menuform.autores, 0);
    auto const rows = alice.log();

    hear("BOB> one");

    EXPECT_EQ(alice.log(), rows);
    EXPECT_THAT(sent_by(alice), SizeIs(1));
}

TEST_F(Log, KeepsThreeHundredAndOneRows)
{
    fill(300);

    hear("BOB> one");

    EXPECT_THAT(alice.log(), SizeIs(301));
    EXPECT_EQ(alice.files.content(mirror), sim::lines(alice.log()));
}

TEST_F(Log, MovesIntoADatedFileWithItsThreeHundredAndSecondRow)
{
    fill(301);
    auto rows = alice.log();

    hear("BOB> one");

    rows.push_back(logged("Msg from BOB", "BOB> one"));
    EXPECT_THAT(alice.log(), IsEmpty());
    EXPECT_FALSE(alice.files.has(mirror));
    EXPECT_EQ(alice.files.content("logs/log261115151802.txt"), sim::lines(rows));
}

TEST_F(Log, BeginsAnewBehindThat)
{
    fill(301);
    hear("BOB> one");

    hear("BOB> two");

    EXPECT_THAT(alice.log(), ElementsAre(logged("Msg from BOB", "BOB> two")));
    EXPECT_EQ(alice.files.content(mirror), sim::lines(alice.log()));
}

TEST_F(Log, OfARunThatWasKilledStandsBelowARowThatSaysTheOpposite)
{
    hear("BOB> one");
    auto const mirrored = alice.files.content(mirror);

    alice.restart();

    auto const rows = alice.log();
    EXPECT_THAT(rows.front(), EndsWith(shutdown_row));
    EXPECT_THAT(rows.back(), EndsWith(start_row));
    EXPECT_EQ(sim::lines({rows.begin() + 1, rows.end() - 1}), mirrored);
    EXPECT_EQ(alice.files.content(mirror), sim::lines(rows));
}

TEST_F(Log, OfARunThatWasKilledComesBackAsOneRowForEachLine)
{
    start_with("11-14-26:09:00a:Msg to   BOB\t\r\none\r\n\r\nthree\r\n---\r\n");

    auto const rows = alice.log();
    EXPECT_THAT(Texts(rows.begin() + 1, rows.end() - 1),
                ElementsAre("11-14-26:09:00a:Msg to   BOB\t", "one", "", "three", "---"));
}

TEST_F(Log, OfManyKilledRunsIsStillThere)
{
    hear("BOB> the first message");
    for (int run = 0; run < 5; ++run) {
        alice.restart();
        office.settle();
    }

    auto const rows = alice.log();
    EXPECT_THAT(rows, Contains("BOB> the first message").Times(1));
    EXPECT_EQ(std::ranges::count_if(
                  rows, [](auto const& row) { return row.find("correctly") != row.npos; }),
              5);
}

TEST_F(Log, OfARunThatWasKilledRollsAtOnceWhereItHasManyLines)
{
    Texts const lines(300, "a line");

    start_with(sim::lines(lines));

    EXPECT_THAT(alice.log(), IsEmpty());
    EXPECT_FALSE(alice.files.has(mirror));
    auto const dated = alice.files.names();
    EXPECT_THAT(dated, Contains(testing::StartsWith("logs/log2611151518")));
}

TEST_F(Log, OfARunThatWasKilledStaysWhereItIsWithALineLess)
{
    start_with(sim::lines(Texts(299, "a line")));

    EXPECT_THAT(alice.log(), SizeIs(301));
    EXPECT_EQ(alice.files.content(mirror), sim::lines(alice.log()));
}

TEST_F(Log, IsGoneWithAStartThatEndsBeforeItsFirstRow)
{
    hear("BOB> one");
    alice.crash();
    alice.host.taken.insert(4111);
    alice.boxes.will_answer(Answer::ok);
    alice.start();
    ASSERT_FALSE(alice.running());
    EXPECT_FALSE(alice.files.has(mirror)) << "the old mirror is deleted once it has been read";

    alice.host.taken.clear();
    alice.start();

    EXPECT_THAT(alice.log(), ElementsAre(EndsWith(start_row)));
}

TEST_F(Log, AfterAProperEndIsNew)
{
    hear("BOB> one");

    restart_alice();

    EXPECT_THAT(alice.log(), ElementsAre(EndsWith(start_row)));
    EXPECT_THAT(alice.files.content("logs/log261115151802.txt"),
                HasSubstr("BOB> one\r\n---\r\n" + logged("Vexlo IM Closed.\t\r\n---\r\n")));
}

TEST_F(Log, ThatCannotBeMirroredEndsNothingWhileAMessageComes)
{
    alice.files.unwritable = {mirror};

    hear("BOB> one");

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(popups_on_show(alice), ElementsAre(0));
    EXPECT_THAT(alice.files.content(mirror), Not(HasSubstr("one")));
}

} // namespace
