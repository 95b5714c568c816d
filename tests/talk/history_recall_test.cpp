#include "tests/talk/talk.h"

namespace {

using namespace talk;
using controls::Window;
using testing::ElementsAre;
using testing::IsEmpty;

/// A message comes back from the history.
class Recall : public Talk {
protected:
    Recall() { open_history(); }

    /// Puts the row into the history and double-clicks it.
    void recall(Row const& row)
    {
        alice.history().add(row);
        alice.person.double_click_history(alice.history().count());
    }

    static Row row_of(std::string_view kind, std::string_view answer)
    {
        auto row = row_from("Bob", "BOB>", "lunch?");
        row[2] = kind;
        row[7] = answer;
        return row;
    }

    static Row row_to(std::string_view recipient, std::string_view tab, std::string_view place)
    {
        Row row;
        row[2] = "To";
        row[3] = recipient;
        row[5] = "lunch?";
        row[7] = tab;
        row[8] = place;
        return row;
    }

    forms::Popup& window = alice.forms().popuplast;
    forms::FrmMain& frmMain = alice.frmMain();
    forms::HistoryFrm& historyfrm = alice.forms().historyfrm;
};

TEST_F(Recall, OfAReceivedMessageFillsTheRecallWindow)
{
    recall(row_from("Bob", "BOB>", "lunch?\r\nALICE MEYER> no\r\nBOB> why?"));

    EXPECT_TRUE(window.window.visible());
    EXPECT_EQ(window.punumber, "10");
    EXPECT_EQ(window.messagefrom.caption(), "Bob");
    EXPECT_EQ(window.temp.text(), "");
    EXPECT_EQ(window.message.text(), "BOB> lunch?\r\nALICE MEYER> no\r\nBOB> why?");
    EXPECT_EQ(window.window.caption, "MsgBob Msg 03:18 pm");
    EXPECT_EQ(window.Label3.caption(), "");
    EXPECT_FALSE(window.beensent.visible);
    EXPECT_THAT(painted(window.message, black), ElementsAre("ALICE MEYER> no\r\n"));
    EXPECT_THAT(popups_on_show(alice), IsEmpty());
}

TEST_F(Recall, OfAnAnsweredMessageBringsTheAnswerAndSaysThatItWasSent)
{
    for (auto const* kind : {"Replied to", "Auto Rep to"}) {
        window.window.hide();
        window.beensent.visible = false;

        recall(row_of(kind, "yes"));

        EXPECT_TRUE(window.window.visible()) << kind;
        EXPECT_TRUE(window.beensent.visible) << kind;
        EXPECT_EQ(window.message.text(), "BOB> lunch?") << kind;
        EXPECT_EQ(window.temp.text(), "yes") << kind;
    }
}

TEST_F(Recall, OfAReceivedMessageEmptiesTheReplyOfTheLastOne)
{
    recall(row_of("Replied to", "yes"));

    recall(row_from("Bob", "BOB>", "lunch?"));

    EXPECT_EQ(window.temp.text(), "");
    EXPECT_FALSE(window.beensent.visible);
}

TEST_F(Recall, OfAMessageToAllSaysSoAndNothingTakesThatBack)
{
    auto to_all = row_from("Bob", "BOB>", "cake");
    to_all[6] = "[ALL]";
    recall(to_all);
    EXPECT_EQ(window.Label3.caption(), "(Sent to ALL)");

    recall(row_from("Bob", "BOB>", "lunch?"));

    EXPECT_EQ(window.Label3.caption(), "(Sent to ALL)");
}

TEST_F(Recall, TicksReplyToAllExactlyAsTheOptionSays)
{
    alice.settings().replytoall.set(1);
    recall(row_from("Bob", "BOB>", "lunch?"));
    EXPECT_EQ(window.Check1.value(), 1);

    alice.settings().replytoall.set(0);
    recall(row_from("Bob", "BOB>", "lunch?"));
    EXPECT_EQ(window.Check1.value(), 0);
}

TEST_F(Recall, ShowsARowWithoutAnyTextToo)
{
    recall(row_from("Bob", "", "")); // What is shown is a blank, and that is not nothing.

    EXPECT_TRUE(window.window.visible());
    EXPECT_EQ(window.message.text(), " ");
}

TEST_F(Recall, CanBeAnswered)
{
    recall(row_from("Bob", "BOB>", "lunch?"));

    alice.person.answer(window, "yes");

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, bob_id, "BOB> lunch?\r\nALICE MEYER> yes")));
    EXPECT_FALSE(window.window.visible());
}

TEST_F(Recall, CountsForTheRowInUse)
{
    recall(row_from("Bob", "BOB>", "one"));
    recall(row_from("Carl Dunn", "CARL DUNN>", "two"));

    alice.person.double_click_history(1);

    EXPECT_EQ(window.message.text(), "BOB> one");
    EXPECT_EQ(window.messagefrom.caption(), "Bob");
}

TEST_F(Recall, OfNoRowDoesNothing)
{
    historyfrm.current = 1;

    alice.enter([&] { historyfrm.ListView1.double_clicked.run(); });

    EXPECT_FALSE(window.window.visible());
    EXPECT_TRUE(alice.running());
}

TEST_F(Recall, BehindASaveThatTrimmedIsStillOfTheRowInUse)
{
    for (int number = 0; number < 100; ++number) {
        alice.history().add(row_from("Bob", "BOB>", std::to_string(number)));
    }
    alice.person.send_to("Carl Dunn", "lunch?");
    ASSERT_EQ(historyfrm.current, 101);

    alice.person.choose(historyfrm.mnuoptions, 5);
    // A key means the row in use; no click comes before it.
    alice.enter([&] { historyfrm.ListView1.double_clicked.run(); });

    EXPECT_EQ(historyfrm.current, 100);
    EXPECT_EQ(frmMain.messagetext.text(), "lunch?");
    EXPECT_TRUE(alice.running());
}

TEST_F(Recall, OfAnUnknownKindDoesNothing)
{
    recall(row_of("to", ""));

    EXPECT_FALSE(window.window.visible());
    EXPECT_EQ(frmMain.messagetext.text(), "");
}

TEST_F(Recall, OfASentMessageFillsTheDraftAndPicksItsRecipient)
{
    alice.person.send_to("Bob", "lunch?");
    alice.person.pick({"Alice Meyer", "Carl Dunn"});
    office.segment.forget();

    alice.person.double_click_history(1);

    EXPECT_EQ(frmMain.messagetext.text(), "lunch?");
    EXPECT_THAT(frmMain.allusers.selected_rows(), ElementsAre("Bob"));
    alice.person.click(frmMain.sendbtn);
    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, bob_id, "ALICE MEYER> lunch?")));
    EXPECT_FALSE(window.window.visible());
}

TEST_F(Recall, OfASentMessagePicksEveryRowOfThatName)
{
    frmMain.allusers.add("Bob");

    recall(row_to("Bob", "0", "1"));

    EXPECT_THAT(frmMain.allusers.selected_rows(), ElementsAre("Bob", "Bob"));
}

TEST_F(Recall, ComparesTheRecipientLetterByLetter)
{
    recall(row_to("BOB", "0", "1"));

    EXPECT_THAT(frmMain.allusers.selected_rows(), IsEmpty());
}

TEST_F(Recall, OfASentMessageToSomebodyWhoHasGonePicksNobody)
{
    alice.person.pick("Carl Dunn");

    recall(row_to("Dora", "0", "1"));
    alice.person.click(frmMain.sendbtn);

    EXPECT_EQ(frmMain.messagetext.text(), "lunch?");
    EXPECT_THAT(sent_by(alice), IsEmpty());
}

TEST_F(Recall, OfAMessageSentToAllPicksNobody)
{
    alice.person.tick_all();
    alice.person.send("cake");
    alice.person.double_click_history(1);

    EXPECT_EQ(frmMain.messagetext.text(), "ALICE MEYER> (To All) cake");
    EXPECT_THAT(frmMain.allusers.selected_rows(), IsEmpty());
    EXPECT_EQ(frmMain.Checkallusers.value(), 0);
}

TEST_F(Recall, OfASentMessageBringsTheMainWindowBack)
{
    alice.person.click(frmMain.spotmin);
    ASSERT_EQ(historyfrm.showmain.caption, "Show Main");

    recall(row_to("Bob", "0", "1"));

    EXPECT_TRUE(frmMain.window.visible());
    EXPECT_EQ(frmMain.window.state, Window::State::normal);
    EXPECT_EQ(frmMain.minimized, "no");
    EXPECT_EQ(historyfrm.showmain.caption, "Hide Main");
    EXPECT_EQ(frmMain.messagetext.text(), "lunch?");
}

TEST_F(Recall, LeavesAMainWindowOnShowAsItIs)
{
    auto const shows = frmMain.window.shows();

    recall(row_to("Bob", "0", "1"));

    EXPECT_EQ(frmMain.window.shows(), shows);
    EXPECT_EQ(frmMain.minimized, "");
}

TEST_F(Recall, OfAReceivedMessageLeavesTheMainWindowHidden)
{
    alice.person.click(frmMain.spotmin);

    recall(row_from("Bob", "BOB>", "lunch?"));

    EXPECT_FALSE(frmMain.window.visible());
    EXPECT_TRUE(window.window.visible());
}

/// Recall of what went to a group.
class GroupRecall : public Recall {
protected:
    GroupRecall()
    {
        frmMain.List1.clear();
        frmMain.List1.add("Lunch" + std::string(30, ' ') + "0");
        frmMain.List1.add("Team" + std::string(30, ' ') + "1");
        alice.forms().groups.group[1].add("Bob");
    }
};

TEST_F(GroupRecall, OpensTheTabAndPicksTheGroup)
{
    alice.person.open_tab(1);
    alice.person.pick_group("Team");
    alice.person.send("lunch?");
    alice.person.pick_group("Lunch");
    alice.person.open_tab(0);
    office.segment.forget();

    alice.person.double_click_history(1);

    EXPECT_EQ(frmMain.SSTab1.tab(), 1);
    EXPECT_EQ(frmMain.List1.index(), 1);
    EXPECT_EQ(frmMain.messagetext.text(), "lunch?");
    alice.person.click(frmMain.sendbtn);
    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, bob_id, "lunch?")));
}

TEST_F(GroupRecall, GoesByThePlaceInTheListAndNotByTheName)
{
    recall(row_to("Team", "1", "0"));

    EXPECT_EQ(frmMain.List1.index(), 0);
}

TEST_F(GroupRecall, OfAPlaceThatIsNoneLeavesNoGroupPicked)
{
    alice.person.open_tab(1);
    alice.person.pick_group("Team");

    for (auto const* place : {"2", "-1", "99999999999"}) {
        recall(row_to("Team", "1", place));
        EXPECT_EQ(frmMain.List1.index(), controls::ListBox::none) << place;
    }
}

TEST_F(GroupRecall, TakesTheLeadingNumbersOfItsColumns)
{
    recall(row_to("Team", "1st", "1st"));
    EXPECT_EQ(frmMain.SSTab1.tab(), 1);
    EXPECT_EQ(frmMain.List1.index(), 1);

    recall(row_to("Bob", "users", ""));
    EXPECT_EQ(frmMain.SSTab1.tab(), 0);
    EXPECT_THAT(frmMain.allusers.selected_rows(), ElementsAre("Bob"));
}

TEST_F(GroupRecall, OfATabThatIsNoneBringsTheTextAlone)
{
    recall(row_to("Bob", "7", "1"));

    EXPECT_EQ(frmMain.messagetext.text(), "lunch?");
    EXPECT_EQ(frmMain.SSTab1.tab(), 0);
    EXPECT_THAT(frmMain.allusers.selected_rows(), IsEmpty());
}

} // namespace
