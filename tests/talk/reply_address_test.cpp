#include "tests/talk/talk.h"

namespace {

using namespace talk;
using namespace std::chrono_literals;
using platform::Answer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

/// Whom a reply goes to.
class ReplyAddress : public Talk {
protected:
    void hear_to_all() { hear("BOB> (To All) cake!", bob_id, "[ALL]"); }

    forms::Popup& popup = alice.popup(0);
    forms::Popup& recalled = alice.forms().popuplast;
    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(ReplyAddress, IsEverybodyForATickedReplyToAMessageToAll)
{
    hear_to_all();
    popup.Check1.set(1);

    alice.person.answer(popup, "mine!");
    office.settle();

    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, "[ALL]",
                                                     "BOB> (To All) cake!\r\nALICE MEYER> mine!")));
    EXPECT_THAT(popups_on_show(bob), SizeIs(1));
    EXPECT_THAT(popups_on_show(carl), SizeIs(1));
}

TEST_F(ReplyAddress, IsCalledAllInEveryRecord)
{
    hear_to_all();
    popup.Check1.set(1);

    alice.person.answer(popup, "mine!");

    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to All");
    EXPECT_THAT(alice.log().back(), StartsWith(logged("Msg to   ALL\t\r\n")));
    EXPECT_THAT(last_row(alice),
                ElementsAre("20261115151802", "11/15/26 03:18 pm", "Replied to", "All", "BOB>",
                            "(To All) cake!", "All", "mine!", "", "All Msg 03:18 pm"));
}

TEST_F(ReplyAddress, IsTheSenderAloneWithoutTheTick)
{
    hear_to_all();

    alice.person.answer(popup, "mine!");

    EXPECT_THAT(sent_by(alice), ElementsAre(StartsWith("[ROOM12\\ALICE][ROOM07\\BOB]")));
}

TEST_F(ReplyAddress, IsTheSenderAloneForATickedMessageToOne)
{
    hear("BOB> lunch?");
    popup.Check1.set(1);

    alice.person.answer(popup, "yes");

    EXPECT_THAT(sent_by(alice), ElementsAre(StartsWith("[ROOM12\\ALICE][ROOM07\\BOB]")));
}

TEST_F(ReplyAddress, IsEverybodyWhereTheOptionTicksEveryPopup)
{
    alice.settings().replytoall.set(1);
    hear_to_all();

    alice.person.answer(popup, "mine!");

    EXPECT_THAT(sent_by(alice), ElementsAre(StartsWith("[ROOM12\\ALICE][ALL]")));
}

TEST_F(ReplyAddress, OfAllIsCaughtByMarshall)
{
    frmMain.userlist.add("[ROOM50\\PETE]=PETE MARSHALL");
    hear_to_all();
    popup.Check1.set(1);

    alice.person.answer(popup, "mine!");

    EXPECT_THAT(sent_by(alice), ElementsAre(StartsWith("[ROOM12\\ALICE][ROOM50\\PETE]")));
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to All");
}

TEST_F(ReplyAddress, OfAnEmptyNameIsTheFirstOfTheDirectory)
{
    popup.response = "";
    frmMain.txtSendMessage.set_text("hello");

    alice.enter([&] { frmMain.cmdSend.run(); });

    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, bob_id, "hello")));
}

TEST_F(ReplyAddress, IsLookedForInAFixedOrder)
{
    std::vector<forms::Popup*> order{&recalled};
    for (std::size_t slot = 1; slot <= 10; ++slot) {
        order.push_back(&alice.popup(slot % 10));
    }
    for (std::size_t place = 0; place < order.size(); ++place) {
        order[place]->response = "Party " + std::to_string(place);
        frmMain.userlist.add("[X]=PARTY " + std::to_string(place));
    }
    for (std::size_t place = 0; place < order.size(); ++place) {
        frmMain.txtSendMessage.set_text("hello");
        alice.enter([&] { frmMain.cmdSend.run(); });

        EXPECT_EQ(frmMain.statustext.caption(), "Message sent to Party " + std::to_string(place));
        // A numbered window's own is empty by now; the recall window empties its own afterwards.
        EXPECT_EQ(order[place]->response.empty(), order[place] != &recalled);
        recalled.response.clear();
    }
}

TEST_F(ReplyAddress, IsNoLongerNamedWhenTheReplyIsOut)
{
    hear("BOB> lunch?");
    hear("CARL DUNN> dinner?", carl_id);

    alice.person.answer(alice.popup(1), "no");
    alice.person.answer(alice.popup(0), "yes");

    EXPECT_THAT(sent_by(alice), ElementsAre(StartsWith("[ROOM12\\ALICE][ROOM33\\CARL]"),
                                            StartsWith("[ROOM12\\ALICE][ROOM07\\BOB]")));
}

class RecallWindow : public ReplyAddress {
protected:
    void recall(std::string_view party = "Bob")
    {
        keep(row_from(party, "BOB>", "lunch?"));
        open_history();
        alice.person.double_click_history(alice.history().count());
    }
};

TEST_F(RecallWindow, AnswersAndKeepsItsMessageAndItsTick)
{
    alice.settings().replytoall.set(1);
    recall();
    recalled.Label3.set_caption("(Sent to ALL)");
    recalled.Check1.set(0);

    alice.person.answer(recalled, "yes");

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, bob_id, "BOB> lunch?\r\nALICE MEYER> yes")));
    EXPECT_FALSE(recalled.window.visible());
    EXPECT_EQ(recalled.message.text(), "BOB> lunch?");
    EXPECT_EQ(recalled.Label3.caption() + recalled.response, "");

    recalled.Check1.set(1);
    alice.person.click(frmMain.recall);
    alice.person.answer(recalled, "!");
    EXPECT_EQ(recalled.Check1.value(), 1);
}

TEST_F(RecallWindow, TouchesNoSlot)
{
    for (int message = 0; message < 3; ++message) {
        hear("BOB> hello");
    }
    recall();
    auto const wins = frmMain.wins.rows();

    alice.person.answer(recalled, "yes");

    EXPECT_EQ(frmMain.wins.rows(), wins);
    EXPECT_EQ(frmMain.popups.count(), 10);
    EXPECT_EQ(frmMain.pucount.caption(), "7");
}

TEST_F(RecallWindow, SaysThatAUserCouldNotBeFoundAndSendsNothing)
{
    recall("Carl");
    int flag = 0;
    alice.boxes.will_answer(Answer::ok).meanwhile([&] { flag = frmMain.boxopen.value(); });
    frmMain.userlist.clear();

    alice.person.answer(recalled, "yes");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("User: Carl could not be found"));
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(frmMain.boxopen.value(), 0);
    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(frmMain.txtSendMessage.text(), "BOB> lunch?\r\nALICE MEYER> yes");
}

TEST_F(RecallWindow, HidesAllTheSameWhenTheUserCouldNotBeFound)
{
    recall("Carl");
    recalled.Label3.set_caption("(Sent to ALL)");
    auto const rows = alice.history().count();
    frmMain.userlist.clear();
    alice.boxes.answer_all();

    alice.person.answer(recalled, "yes");

    EXPECT_FALSE(recalled.window.visible());
    EXPECT_EQ(recalled.Label3.caption() + recalled.response, "");
    EXPECT_EQ(recalled.message.text(), "BOB> lunch?");
    EXPECT_EQ(alice.history().count(), rows);
}

TEST_F(RecallWindow, DoesNotWakeTheQueueBehindThatBox)
{
    recall("Carl");
    frmMain.userlist.clear();
    alice.boxes.will_answer(Answer::ok)
        .meanwhile([&] {
            office.segment.inject_to(alice.host.name, datagram(bob_id, alice_id, "BOB> hello"));
        })
        .after(1s);

    alice.person.answer(recalled, "yes");

    EXPECT_THAT(frmMain.cue, SizeIs(1));
    EXPECT_FALSE(frmMain.Timer3.enabled());
    office.run_for(1s);
    EXPECT_THAT(frmMain.cue, SizeIs(1));
    hear("BOB> and again"); // The next arrival does.
    EXPECT_THAT(popups_on_show(alice), ElementsAre(0, 1));
}

TEST_F(RecallWindow, ForgetsOnlyItsAddresseeWhenItCloses)
{
    recall();
    recalled.Label3.set_caption("(Sent to ALL)");
    recalled.Check1.set(1);
    recalled.response = "left over";
    alice.person.type_reply(recalled, "perhaps");

    alice.person.click(recalled, recalled.Command1);

    EXPECT_FALSE(recalled.window.visible());
    EXPECT_EQ(recalled.response, "");
    EXPECT_EQ(recalled.Label3.caption(), "(Sent to ALL)");
    EXPECT_EQ(recalled.message.text(), "BOB> lunch?");
    EXPECT_EQ(recalled.temp.text(), "perhaps");
    EXPECT_EQ(recalled.Check1.value(), 1);
    EXPECT_EQ(frmMain.popups.count(), 10);
}

TEST_F(RecallWindow, ComesBackAfterACloseOfAll)
{
    recall();

    alice.enter([&] { frmMain.dissmissall.click(); });
    EXPECT_FALSE(recalled.window.visible());
    alice.person.click(frmMain.recall);

    EXPECT_TRUE(recalled.window.visible());
    EXPECT_EQ(recalled.message.text(), "BOB> lunch?");
}

TEST_F(RecallWindow, BecomesActiveLikeAnyPopup)
{
    recall();
    recalled.Label3.set_caption("(Sent to ALL)");
    recalled.message.select(2, 3);
    recalled.Command2.enabled = true;

    alice.person.turn_to(recalled.window);

    EXPECT_TRUE(recalled.Check1.visible);
    EXPECT_FALSE(recalled.Command2.enabled);
    EXPECT_EQ(recalled.message.selection_start(), recalled.message.text().size());
    EXPECT_EQ(recalled.temp.focus.requests(), 1U);
}

TEST_F(RecallWindow, ColoursTheReadersOwnTurns)
{
    keep(row_from("Bob", "ALICE MEYER>", "lunch?\r\nBOB> yes"));
    open_history();
    alice.person.double_click_history(alice.history().count());

    EXPECT_THAT(painted(recalled.message, black), ElementsAre("ALICE MEYER> lunch?\r\n"));
    EXPECT_THAT(painted(recalled.message, red), ElementsAre("BOB> yes"));
}

TEST_F(RecallWindow, DoesNotComeUpEmpty)
{
    alice.person.click(frmMain.recall);

    EXPECT_FALSE(recalled.window.visible());
}

} // namespace
