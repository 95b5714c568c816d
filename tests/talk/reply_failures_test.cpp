#include "tests/talk/talk.h"
#include "text/failure.h"

namespace {

using namespace talk;
using namespace std::chrono_literals;
using platform::Answer;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A reply that the network refuses.
class ReplyFailure : public Talk {
protected:
    ReplyFailure()
    {
        hear("BOB> (To All) cake!", bob_id, "[ALL]");
        popup.Check1.set(1);
    }

    void answer_without_network(std::string_view reply = "mine!")
    {
        alice.unplug();
        alice.boxes.will_answer(Answer::ok);
        alice.person.answer(popup, reply);
    }

    forms::Popup& popup = alice.popup(0);
    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(ReplyFailure, IsToldByStatusLineLogAndBox)
{
    answer_without_network();

    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_EQ(alice.log().back(), logged("Network Error No route to host."));
    EXPECT_THAT(alice.boxes.texts(), ElementsAre("No Network Connection."));
    EXPECT_THAT(alice.files.content("logs/logtemp.txt"),
                testing::EndsWith("Network Error No route to host.\r\n"));
}

TEST_F(ReplyFailure, OfAnotherKindIsToldByNumberAndText)
{
    alice.host.send_failure = text::Failure("Network is unreachable", 101, "send");
    alice.boxes.will_answer(Answer::ok);

    alice.person.answer(popup, "mine!");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Error #101\r\nError :Network is unreachable"));
    EXPECT_EQ(alice.log().back(), logged("Network Error Network is unreachable"));
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_TRUE(popup.window.visible());
}

TEST_F(ReplyFailure, LeavesNoRowInTheHistory)
{
    auto const rows = alice.history().count();

    answer_without_network();

    EXPECT_EQ(alice.history().count(), rows);
    EXPECT_THAT(alice.log(), testing::Not(Contains(testing::HasSubstr("Msg to"))));
}

TEST_F(ReplyFailure, LeavesThePopupAsItIs)
{
    answer_without_network();

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.message.text(), "BOB> (To All) cake!");
    EXPECT_EQ(popup.temp.text(), "mine!");
    EXPECT_EQ(popup.Label3.caption(), "(Sent to ALL)");
    EXPECT_EQ(popup.Check1.value(), 1);
    EXPECT_EQ(frmMain.wins.row(0), "-");
    EXPECT_EQ(frmMain.pucount.caption(), "9");
}

TEST_F(ReplyFailure, LeavesNoAddresseeBehind)
{
    answer_without_network();

    alice.forms().for_each_popup(
        [](forms::Popup const& window) { EXPECT_EQ(window.response, ""); });
}

TEST_F(ReplyFailure, CanBeSentAgainWhenTheNetworkIsBack)
{
    answer_without_network();
    office.segment.forget();
    alice.plug_in();

    alice.person.click(popup, popup.Command2);

    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, "[ALL]",
                                                     "BOB> (To All) cake!\r\nALICE MEYER> mine!")));
    EXPECT_FALSE(popup.window.visible());
    EXPECT_EQ(last_row(alice)[2], "Replied to");
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to All");
}

TEST_F(ReplyFailure, DoesNotTouchTheReplyOfAnotherPopup)
{
    hear("CARL DUNN> dinner?", carl_id);
    answer_without_network();
    alice.plug_in();

    alice.person.answer(alice.popup(1), "no");

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, carl_id, "CARL DUNN> dinner?\r\nALICE MEYER> no")));
    EXPECT_TRUE(popup.window.visible());
}

TEST_F(ReplyFailure, KeepsTheReplyAsItWasCut)
{
    popup.temp.set_text(std::string(970, 'r'));

    answer_without_network(std::string(30, 'x'));

    EXPECT_EQ(popup.temp.text(), std::string(970, 'r'));
}

TEST_F(ReplyFailure, ShowsTheMainWindowLikeAnyFailedSend)
{
    alice.person.click(frmMain.spotmin);
    ASSERT_FALSE(frmMain.window.visible());

    answer_without_network();

    EXPECT_TRUE(frmMain.window.visible());
}

TEST_F(ReplyFailure, LetsRowsWaitBehindItsBoxAndWakesThem)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok)
        .meanwhile([&] {
            EXPECT_EQ(frmMain.boxopen.value(), 1);
            alice.enter([&] { alice.listening.receive(datagram(carl_id, alice_id, "hello")); });
        })
        .after(1s);

    alice.person.answer(popup, "mine!");

    EXPECT_THAT(popups_on_show(alice), ElementsAre(0));
    EXPECT_EQ(frmMain.boxopen.value(), 0);
    office.settle();
    EXPECT_THAT(popups_on_show(alice), ElementsAre(0, 1));
}

TEST_F(ReplyFailure, SwitchesAutoRespondOffAllTheSame)
{
    alice.person.choose(alice.forms().menuform.autores, 0);

    answer_without_network();

    EXPECT_EQ(frmMain.away.value(), 0);
}

TEST_F(ReplyFailure, ResetsNoPorts)
{
    alice.settings().resetports.set(1);
    frmMain.Command6.attach([] { FAIL() << "nothing was transmitted"; });

    answer_without_network();
}

TEST_F(ReplyFailure, LeavesTheRecallWindowAsItIs)
{
    auto& recalled = alice.forms().popuplast;
    open_history();
    alice.person.double_click_history(1);
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);

    alice.person.answer(recalled, "mine!");

    EXPECT_TRUE(recalled.window.visible());
    EXPECT_EQ(recalled.temp.text(), "mine!");
    EXPECT_EQ(recalled.Label3.caption(), "(Sent to ALL)");
    EXPECT_EQ(recalled.response, "");
    alice.plug_in();
    alice.person.click(recalled, recalled.Command2);
    EXPECT_THAT(sent_by(alice), SizeIs(1));
    EXPECT_FALSE(recalled.window.visible());
}

TEST_F(ReplyFailure, OfAQuickAnswerKeepsTheAnswer)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);

    alice.person.click(popup, popup.quick(13));

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.temp.text(), "OK");
}

TEST_F(ReplyFailure, BehindTheReplyIsToldButTheReplyIsOut)
{
    alice.settings().resetports.set(1);
    alice.boxes.will_answer(Answer::ok);
    frmMain.Command6.attach(
        [] { throw text::Failure(text::no_route_to_host, 113, "DiscoveryPort"); });

    alice.person.answer(popup, "mine!");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("No Network Connection."));
    EXPECT_EQ(last_row(alice)[2], "Replied to");
    EXPECT_FALSE(popup.window.visible());
}

TEST_F(ReplyFailure, OfATakenPortEndsTheProgram)
{
    alice.settings().resetports.set(1);
    alice.host.taken.insert(4111);
    alice.listening.close();
    alice.boxes.will_answer(Answer::ok);

    alice.person.answer(popup, "mine!");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4111 is in use."));
    EXPECT_FALSE(alice.running());
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(ReplyFailure, OfAFileIsNotTheNetworks)
{
    alice.files.read_only = true;

    alice.person.answer(popup, "mine!");

    EXPECT_FALSE(alice.running());
    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_THAT(alice.boxes.texts(), IsEmpty());
}

} // namespace
