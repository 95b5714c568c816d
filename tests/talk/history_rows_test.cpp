#include "tests/talk/talk.h"

namespace {

using namespace talk;
using testing::ElementsAre;
using testing::IsEmpty;

/// The rows of the history, and the one that is shown in full.
class HistoryRows : public Talk {
protected:
    HistoryRows() { open_history(); }

    void fill(int rows)
    {
        for (int number = 1; number <= rows; ++number) {
            alice.history().add(row_from("Bob", "BOB>", std::to_string(number)));
        }
    }

    forms::HistoryFrm& historyfrm = alice.forms().historyfrm;
    controls::Table& list = historyfrm.ListView1;
};

TEST_F(HistoryRows, TheNewOneIsSelectedInUseAndShown)
{
    hear("BOB> one");
    hear("CARL DUNN> two", carl_id);

    EXPECT_THAT(told(list), ElementsAre("From|Bob|one", "From|Carl Dunn|two"));
    EXPECT_EQ(list.selected(), 2);
    EXPECT_EQ(historyfrm.current, 2);
    EXPECT_EQ(historyfrm.message.text(), "CARL DUNN> two");
}

TEST_F(HistoryRows, TheNewOneTakesTheSelectionFromTheOneThatAPersonPicked)
{
    hear("BOB> one");
    hear("BOB> two");
    alice.person.pick_history(1);
    EXPECT_EQ(historyfrm.message.text(), "BOB> one");

    hear("BOB> three");

    EXPECT_EQ(list.selected(), 3);
    EXPECT_EQ(historyfrm.message.text(), "BOB> three");
}

TEST_F(HistoryRows, TheHundredAndFirstRemovesTheOldestAtOnce)
{
    fill(100);

    hear("BOB> new");

    EXPECT_EQ(list.count(), 100);
    EXPECT_EQ(list.row(1)[5], "2");
    EXPECT_EQ(list.row(100)[5], "new");
    EXPECT_EQ(list.selected(), 100);
    EXPECT_EQ(historyfrm.current, 100);
}

TEST_F(HistoryRows, AHundredStay)
{
    fill(99);

    hear("BOB> new");

    EXPECT_EQ(list.count(), 100);
    EXPECT_EQ(list.row(1)[5], "1");
}

TEST_F(HistoryRows, ASentOneMayStandAsTheHundredAndFirstUntilTheNextRefresh)
{
    fill(100);
    alice.person.send_to("Bob", "one more");
    EXPECT_EQ(list.count(), 101);
    alice.person.send_to("Bob", "and one");
    EXPECT_EQ(list.count(), 102);

    hear("BOB> new");

    EXPECT_EQ(list.count(), 100);
    EXPECT_EQ(list.row(1)[5], "4");
    EXPECT_EQ(list.row(98)[5], "one more");
}

TEST_F(HistoryRows, AReplyTrimsTheListToo)
{
    hear("BOB> lunch?");
    fill(99);

    alice.person.answer(alice.popup(0), "yes");

    EXPECT_EQ(list.count(), 100);
    EXPECT_EQ(last_row(alice)[2], "Replied to");
    EXPECT_EQ(list.row(1)[5], "1");
}

TEST_F(HistoryRows, AnAnswerInTheUsersPlaceTrimsTheListToo)
{
    alice.person.choose(alice.forms().menuform.autores, 0);
    fill(100);

    hear("BOB> lunch?");

    EXPECT_EQ(list.count(), 100);
    EXPECT_EQ(last_row(alice)[2], "Auto Rep to");
}

TEST_F(HistoryRows, ASentOneIsBlackWhenItIsNew)
{
    alice.person.send_to("Bob", "lunch?");

    EXPECT_EQ(historyfrm.message.text(), "ALICE MEYER> lunch?");
    EXPECT_THAT(painted(historyfrm.message, black), ElementsAre("ALICE MEYER> lunch?"));
    EXPECT_THAT(painted(historyfrm.message, red), IsEmpty());
}

TEST_F(HistoryRows, ASentOneIsRedBehindARefreshAndBlackBehindAClick)
{
    alice.person.send_to("Bob", "lunch?");

    alice.enter([this] { historyfrm.historyrefresh.run(); });
    EXPECT_EQ(historyfrm.message.text(), "ALICE MEYER> lunch?");
    EXPECT_THAT(painted(historyfrm.message, red), ElementsAre("ALICE MEYER> lunch?"));

    alice.person.pick_history(1);
    EXPECT_THAT(painted(historyfrm.message, black), ElementsAre("ALICE MEYER> lunch?"));
}

TEST_F(HistoryRows, ASentOneIsSignedByTheUpperCaseOfThePresentName)
{
    alice.person.send_to("Bob", "lunch?");
    alice.frmMain().friendlyname = "Al Meyer";

    alice.person.pick_history(1);
    EXPECT_EQ(historyfrm.message.text(), "AL MEYER> lunch?");

    alice.enter([this] { historyfrm.historyrefresh.run(); });
    EXPECT_EQ(historyfrm.message.text(), "AL MEYER> lunch?");
}

TEST_F(HistoryRows, AKindIsComparedLetterByLetter)
{
    auto row = row_from("Bob", "BOB>", "lunch?");
    row[2] = "to";
    keep(row);
    EXPECT_EQ(historyfrm.message.text(), "BOB> lunch?");

    row[2] = "replied to";
    row[7] = "yes";
    keep(row);
    EXPECT_EQ(historyfrm.message.text(), "BOB> lunch?");
}

TEST_F(HistoryRows, ARefreshShowsTheLastOne)
{
    fill(3);

    alice.enter([this] { historyfrm.historyrefresh.run(); });

    EXPECT_EQ(historyfrm.current, 3);
    EXPECT_EQ(historyfrm.message.text(), "BOB> 3");
}

TEST_F(HistoryRows, WithoutAnyARefreshAndAClickLeaveTheTextAsItIs)
{
    historyfrm.message.set_text("as it was");

    alice.enter([this] { historyfrm.historyrefresh.run(); });
    EXPECT_EQ(historyfrm.current, 0);
    alice.enter([this] { list.clicked.run(); });

    EXPECT_EQ(historyfrm.message.text(), "as it was");
    EXPECT_EQ(historyfrm.current, 0);
}

TEST_F(HistoryRows, AClickBesideThemLeavesTheTextAsItIs)
{
    fill(2);
    historyfrm.message.set_text("as it was");

    alice.enter([this] { list.clicked.run(); });

    EXPECT_EQ(historyfrm.message.text(), "as it was");
    EXPECT_TRUE(alice.running());
}

} // namespace
