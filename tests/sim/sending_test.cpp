#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Sending : public TwoPeople {
protected:
    /// Puts Carl on Alice's list; his computer is off.
    void show_carl()
    {
        office.segment.inject_to("ROOM12", answer(carl_id, "CARL DUNN"));
        office.settle();
        office.segment.forget();
        alice.journal.switch_on();
    }

    [[nodiscard]] std::vector<std::string> sent() const
    {
        return office.segment.texts_from("ROOM12");
    }

    forms::FrmMain& frmMain = alice.frmMain();
    controls::TextBox& draft = frmMain.messagetext;
};

TEST_F(Sending, ToOneUserSendsOneDatagram)
{
    alice.person.send_to("Bob", "Lunch at noon?");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "ALICE MEYER> Lunch at noon?")));
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to Bob");
    EXPECT_EQ(draft.text(), "");
    EXPECT_GT(draft.focus.requests(), 0U);
}

TEST_F(Sending, ToOneUserLeavesALogRowAndAHistoryRow)
{
    alice.person.send_to("Bob", "Lunch at noon?");

    EXPECT_EQ(alice.log().back(), logged("Msg to   BOB\t\r\nLunch at noon?\r\n---"));
    EXPECT_EQ(alice.files.content("logs/logtemp.txt"),
              alice.log().at(0) + "\r\n" + alice.log().at(1) + "\r\n");
    ASSERT_EQ(alice.history().count(), 1);
    auto row = alice.history().row(1);
    EXPECT_THAT(row.at(0), testing::StartsWith("20261115151"));
    row.at(0).clear();
    EXPECT_THAT(row, ElementsAre("", "11/15/26 03:15 pm", "To", "Bob", "", "Lunch at noon?", "",
                                 "0", "1", ""));
    EXPECT_EQ(alice.history().selected(), 1);
}

TEST_F(Sending, ShowsTheNewHistoryRowItself)
{
    int shown = 0;
    alice.forms().historyfrm.showrow.attach([&] { ++shown; });

    alice.person.send_to("Bob", "Lunch?");

    EXPECT_EQ(shown, 1);
}

TEST_F(Sending, ToThreeUsersSendsThreeDatagramsAndTellsThemWithALeadingComma)
{
    show_carl();
    alice.person.pick({"Carl Dunn", "Bob", "Alice Meyer"});

    alice.person.send("Hello");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, alice_id, "ALICE MEYER> Hello"),
                                    message(alice_id, bob_id, "ALICE MEYER> Hello"),
                                    message(alice_id, carl_id, "ALICE MEYER> Hello")));
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to , Alice Meyer, Bob, Carl Dunn");
    EXPECT_THAT(alice.log(), SizeIs(4));
    EXPECT_EQ(alice.history().count(), 3);
    EXPECT_EQ(alice.history().row(3).at(3), "Carl Dunn");
}

TEST_F(Sending, TheSelectionStaysForTheNextMessage)
{
    alice.person.send_to("Bob", "one");
    alice.person.send("two");

    EXPECT_THAT(sent(), SizeIs(2));
}

TEST_F(Sending, BuildsTheIdentityAnew)
{
    alice.environment.variables["computername"] = "Room99";

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(sent(), ElementsAre("[ROOM99\\ALICE][ROOM07\\BOB]ALICE MEYER> Hello"));
}

TEST_F(Sending, ATextOfTheLimitGoesOutWhole)
{
    alice.person.send_to("Bob", std::string(970, 'x'));

    EXPECT_THAT(sent(),
                ElementsAre(message(alice_id, bob_id, "ALICE MEYER> " + std::string(970, 'x'))));
}

TEST_F(Sending, ATextBeyondTheLimitIsCutWithoutAWord)
{
    alice.person.send_to("Bob", std::string(971, 'x'));

    EXPECT_THAT(sent(),
                ElementsAre(message(alice_id, bob_id, "ALICE MEYER> " + std::string(970, 'x'))));
    EXPECT_EQ(alice.history().row(1).at(5), std::string(970, 'x'));
    EXPECT_EQ(frmMain.recalltext, std::string(971, 'x'));
}

TEST_F(Sending, AnEmptyDraftSendsNothingAndSaysNothing)
{
    alice.person.pick("Bob");
    frmMain.statustext.set_caption("as it was");

    alice.person.click(frmMain.sendbtn);

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(frmMain.statustext.caption(), "as it was");
    EXPECT_EQ(alice.history().count(), 0);
}

TEST_F(Sending, AnEmptyDraftRefreshesIdentityAndRecipientsAllTheSame)
{
    alice.person.pick("Bob");
    frmMain.multiusers.clear();
    alice.environment.variables["computername"] = "Room99";

    alice.person.click(frmMain.sendbtn);

    EXPECT_EQ(frmMain.user, "[ROOM99\\ALICE]");
    EXPECT_THAT(frmMain.multiusers.rows(), ElementsAre("Bob"));
}

TEST_F(Sending, AnEmptyDraftIsKeptForARecallAndLeavesTheTickForAll)
{
    alice.person.send_to("Bob", "Hello");
    alice.person.tick_all();

    alice.person.click(frmMain.sendbtn);

    EXPECT_EQ(frmMain.recalltext, "");
    EXPECT_EQ(frmMain.Checkallusers.value(), 1);
}

TEST_F(Sending, WithoutARecipientTheDraftStays)
{
    alice.person.type("Hello");

    alice.person.click(frmMain.sendbtn);

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(draft.text(), "Hello");
}

TEST_F(Sending, AMarkWithoutASelectionSendsNothing)
{
    alice.person.pick("Bob");
    alice.person.pick_nobody();
    alice.person.type("Hello");

    alice.person.click(frmMain.sendbtn);

    EXPECT_EQ(frmMain.allusers.text(), "Bob");
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(draft.text(), "Hello");
}

TEST_F(Sending, WithoutAMarkNothingIsSentWhoeverIsSelected)
{
    // The mark leaves with its row; the list's text is what tells that nobody is selected.
    alice.person.pick({"Bob", "Alice Meyer"});
    alice.enter([this] { frmMain.allusers.remove(0); });

    alice.person.send("Hello");

    EXPECT_THAT(frmMain.multiusers.rows(), ElementsAre("Bob"));
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(draft.text(), "Hello");
}

TEST_F(Sending, TheStatusLineNamesTheMarkWhoeverIsSelected)
{
    alice.person.pick({"Alice Meyer", "Bob"});
    alice.enter([this] { frmMain.allusers.select(1, false); });

    alice.person.send("Hello");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, alice_id, "ALICE MEYER> Hello")));
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to Bob");
    EXPECT_EQ(alice.history().row(1).at(3), "Alice Meyer");
    EXPECT_EQ(alice.log().back(), logged("Msg to   ALICE MEYER\t\r\nHello\r\n---"));
}

TEST_F(Sending, ANameThatNobodyHasGoesOutToNobody)
{
    frmMain.allusers.add("Ghost");
    alice.person.pick("Ghost");

    alice.person.send("Boo");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, "[---]", "ALICE MEYER> Boo")));
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to Ghost");
}

TEST_F(Sending, ANameFindsTheFirstLongerNameThatEndsInIt)
{
    frmMain.userlist.add("[ROOM99\\MEYER]=MEYER");
    frmMain.allusers.add("Meyer");
    alice.person.pick("Meyer");

    alice.person.send("Hello");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, alice_id, "ALICE MEYER> Hello")));
}

TEST_F(Sending, LineEndsAndBracketsArriveAsTheyWereTyped)
{
    alice.person.send_to("Bob", "one\r\ntwo] three= > four");
    office.settle();

    EXPECT_EQ(bob.popup(0).message.text(), "ALICE MEYER> one\r\ntwo] three= > four");
}

TEST_F(Sending, KeepsTheDraftAndItsPlaceForARecall)
{
    alice.person.send_to("Bob", "Hello");

    EXPECT_EQ(frmMain.recalltext, "Hello");
    EXPECT_EQ(frmMain.recalltab, "0");
    EXPECT_EQ(frmMain.recallindex, "1");
}

TEST_F(Sending, ATabBeyondTheGroupsKeepsTheIndexOfTheLastSend)
{
    alice.person.send_to("Bob", "Hello");
    alice.person.open_tab(2);

    alice.person.send("Hello");

    EXPECT_EQ(frmMain.recalltab, "2");
    EXPECT_EQ(frmMain.recallindex, "1");
}

TEST_F(Sending, ATabBeyondTheGroupsSendsNothing)
{
    alice.person.open_tab(2);
    alice.person.pick("Bob");

    alice.person.send("Hello");

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(draft.text(), "Hello");
}

TEST_F(Sending, BringsTheHistoryButtonOut)
{
    frmMain.history.visible = false;
    frmMain.history.enabled = false;

    alice.person.click(frmMain.sendbtn);

    EXPECT_TRUE(frmMain.history.visible);
    EXPECT_TRUE(frmMain.history.enabled);
}

TEST_F(Sending, SwitchesAutoRespondOffFirst)
{
    for (auto const& text : {"Hello", ""}) {
        alice.person.pick_nobody();
        draft.set_text(text);
        frmMain.away.set(1);
        alice.forms().menuform.autores.check_only(2);

        alice.person.click(frmMain.sendbtn);

        EXPECT_EQ(frmMain.away.value(), 0) << text;
        EXPECT_TRUE(alice.forms().menuform.autores[4].checked) << text;
        EXPECT_FALSE(alice.forms().menuform.autores[2].checked) << text;
    }
}

TEST_F(Sending, RunsTheAwayHandlerEvenWhenItWasOff)
{
    alice.person.type("Hello");
    frmMain.Label5.visible = true;

    alice.person.click(frmMain.sendbtn);

    EXPECT_FALSE(frmMain.Label5.visible);
}

TEST_F(Sending, ClearEmptiesTheDraft)
{
    alice.person.type("Hello");
    auto const requests = draft.focus.requests();

    alice.person.click(frmMain.Command3);

    EXPECT_EQ(draft.text(), "");
    EXPECT_EQ(draft.focus.requests(), requests + 1);
}

TEST_F(Sending, HappensWhileTheQueueWaitsForItsTick)
{
    office.segment.inject_to("ROOM12", message(bob_id, alice_id, "Bob> Hello"));
    office.run_for(1ms);

    alice.person.send_to("Bob", "one");

    EXPECT_EQ(frmMain.cue.size(), 1U);
    EXPECT_THAT(sent(), SizeIs(1));
}

} // namespace
