#include "tests/talk/talk.h"

namespace {

using namespace talk;
using sim::Peer;
using testing::ElementsAre;
using testing::IsEmpty;
using Stacking = controls::Window::Stacking;

class PopupWindow : public Talk {
protected:
    [[nodiscard]] forms::Popup& popup() { return alice.popup(0); }
};

TEST_F(PopupWindow, IsOfOneSizeWithItsFixedWords)
{
    alice.forms().for_each_popup([](forms::Popup& window) {
        EXPECT_FLOAT_EQ(window.window.width, 5235);
        EXPECT_FLOAT_EQ(window.window.height, 6855);
        EXPECT_EQ(window.Label1.caption(), "Response");
        EXPECT_EQ(window.Label2.caption(), "Message from");
        EXPECT_EQ(window.Check1.caption, "Reply to All");
        EXPECT_EQ(window.Command1.caption, "Close");
        EXPECT_EQ(window.Command2.caption, "Send");
        EXPECT_EQ(window.fwd.caption, "Forward");
        EXPECT_EQ(window.printbtn.caption, "Save / Print");
        EXPECT_EQ(window.punumber, "0");
        EXPECT_EQ(window.beensent.caption(), "This Msg has been sent");
        EXPECT_FALSE(window.beensent.visible);
    });
}

TEST_F(PopupWindow, ShowsWhoWritesWhatAndWhen)
{
    bob.person.send_to("Alice Meyer", "lunch?");
    office.settle();

    EXPECT_TRUE(popup().window.visible());
    EXPECT_EQ(popup().messagefrom.caption(), "Bob");
    EXPECT_EQ(popup().message.text(), "BOB> lunch?");
    EXPECT_EQ(popup().window.caption, "Bob Msg 03:18 pm");
    EXPECT_EQ(popup().Label3.caption(), "");
}

TEST_F(PopupWindow, ShowsEveryTextAsCharacters)
{
    std::string_view const body = "BOB> <b>bold</b> & \"quoted\" \r alone, \n alone, \t";
    hear(body);

    EXPECT_EQ(popup().message.text(), body);
}

TEST_F(PopupWindow, ComesUpWithoutTakingTheKeyboard)
{
    hear("BOB> lunch?");

    EXPECT_EQ(popup().temp.focus.requests(), 0U);
    EXPECT_FALSE(popup().window.placed);
}

TEST_F(PopupWindow, GivesTheKeyboardToTheReplyWhenItBecomesActive)
{
    hear("BOB> lunch?");

    alice.person.turn_to(popup().window);

    EXPECT_EQ(popup().temp.focus.requests(), 1U);
}

TEST_F(PopupWindow, OffersReplyToAllOnlyForAMessageToAll)
{
    hear("BOB> lunch?");
    hear("BOB> (To All) cake!", bob_id, "[ALL]");

    alice.person.turn_to(alice.popup(0).window);
    alice.person.turn_to(alice.popup(1).window);

    EXPECT_FALSE(alice.popup(0).Check1.visible);
    EXPECT_TRUE(alice.popup(1).Check1.visible);
    EXPECT_EQ(alice.popup(1).Label3.caption(), "(Sent to ALL)");
}

TEST_F(PopupWindow, TakesTheOfferBackForTheNextMessage)
{
    hear("BOB> (To All) cake!", bob_id, "[ALL]");
    alice.person.turn_to(popup().window);
    alice.person.click(popup(), popup().Command1);
    hear("BOB> lunch?");

    alice.person.turn_to(popup().window);

    EXPECT_FALSE(popup().Check1.visible);
}

TEST_F(PopupWindow, LetsSendBePressedOnlyWithAReply)
{
    hear("BOB> lunch?");
    popup().Command2.enabled = true;
    alice.person.turn_to(popup().window);
    EXPECT_FALSE(popup().Command2.enabled);

    alice.person.type_reply(popup(), "y");
    EXPECT_TRUE(popup().Command2.enabled);
    popup().Command2.enabled = false;
    alice.person.turn_to(popup().window);
    EXPECT_TRUE(popup().Command2.enabled);

    popup().temp.set_text("");
    EXPECT_FALSE(popup().Command2.enabled);
}

TEST_F(PopupWindow, ShowsTheNewestPartOfTheMessage)
{
    hear("BOB> lunch?");
    EXPECT_EQ(popup().message.selection_start(), 11U);
    EXPECT_EQ(popup().message.selection_length(), 0U);

    popup().message.select(2, 5);
    alice.person.turn_to(popup().window);

    EXPECT_EQ(popup().message.selection_start(), 11U);
    EXPECT_EQ(popup().message.selection_length(), 0U);
}

TEST_F(PopupWindow, IsLeftAloneByItsActivationWhenItHasNoMessage)
{
    hear("");
    ASSERT_TRUE(popup().window.visible());
    popup().Check1.visible = true;
    popup().Command2.enabled = true;

    alice.person.turn_to(popup().window);

    EXPECT_TRUE(popup().Check1.visible);
    EXPECT_TRUE(popup().Command2.enabled);
    EXPECT_EQ(popup().temp.focus.requests(), 0U);
}

TEST_F(PopupWindow, PutsTheCaretBehindTheReplyWhenTheReplyGetsTheFocus)
{
    popup().temp.set_text("not yet");
    popup().temp.select(1, 3);

    popup().temp.focus.got.run();

    EXPECT_EQ(popup().temp.selection_start(), 7U);
    EXPECT_EQ(popup().temp.selection_length(), 0U);
}

TEST_F(PopupWindow, WarnsOfTheNineHundredAndSeventyFirstCharacterAndTakesIt)
{
    popup().temp.set_text(std::string(970, 'x'));
    EXPECT_EQ(popup().Label1.caption(), "Response");

    popup().temp.set_text(std::string(971, 'x'));
    EXPECT_EQ(popup().Label1.caption(), "Message length exceeded");
    EXPECT_EQ(popup().temp.length(), 971U);

    popup().temp.set_text("short again");
    EXPECT_EQ(popup().Label1.caption(), "Response");
}

TEST_F(PopupWindow, CountsALineEndAsTwoCharacters)
{
    popup().temp.set_text(std::string(968, 'x') + "\r\n");
    EXPECT_EQ(popup().Label1.caption(), "Response");

    popup().temp.set_text(std::string(969, 'x') + "\r\n");
    EXPECT_EQ(popup().Label1.caption(), "Message length exceeded");
}

TEST_F(PopupWindow, ClosesAndGivesItsSlotBack)
{
    hear("BOB> (To All) cake!", bob_id, "[ALL]");
    popup().response = "left over";

    alice.person.click(popup(), popup().Command1);

    EXPECT_FALSE(popup().window.visible());
    EXPECT_EQ(popup().Label3.caption(), "");
    EXPECT_EQ(popup().response, "");
    EXPECT_EQ(popup().message.text(), "");
    EXPECT_EQ(alice.frmMain().wins.row(0), "0");
    EXPECT_EQ(alice.frmMain().pucount.caption(), "10");
}

TEST_F(PopupWindow, KeepsItsTickAndItsReplyWhenItCloses)
{
    hear("BOB> lunch?");
    popup().Check1.set(1);
    alice.person.type_reply(popup(), "perhaps");

    alice.person.click(popup(), popup().Command1);

    EXPECT_EQ(popup().Check1.value(), 1);
    EXPECT_EQ(popup().temp.text(), "perhaps");
}

TEST_F(PopupWindow, LosesItsReplyWithTheNextMessage)
{
    hear("BOB> lunch?");
    alice.person.type_reply(popup(), std::string(971, 'x'));
    alice.person.click(popup(), popup().Command1);

    hear("BOB> dinner?");

    EXPECT_EQ(popup().temp.text(), "");
    EXPECT_EQ(popup().Label1.caption(), "Response");
}

TEST_F(PopupWindow, KeepsItsNoteAndItsTickWhenItIsTakenOver)
{
    hear("BOB> (To All) cake!", bob_id, "[ALL]");
    popup().Check1.set(1);
    for (int others = 0; others < 9; ++others) {
        hear("BOB> and more");
    }

    hear("BOB> lunch?");

    EXPECT_EQ(popup().message.text(), "BOB> lunch?");
    EXPECT_EQ(popup().Label3.caption(), "(Sent to ALL)");
    EXPECT_EQ(popup().Check1.value(), 1);
}

TEST_F(PopupWindow, IsTickedByTheOptionWhoeverTheMessageIsFor)
{
    alice.settings().replytoall.set(1);
    hear("BOB> lunch?");
    EXPECT_EQ(popup().Check1.value(), 1);

    alice.settings().replytoall.set(0);
    alice.person.click(popup(), popup().Command1);
    hear("BOB> lunch?");

    EXPECT_EQ(popup().Check1.value(), 1); // Nobody has taken the tick away.
}

TEST_F(PopupWindow, IsClosedWithAllOthersButKeepsTickAndReply)
{
    hear("BOB> (To All) cake!", bob_id, "[ALL]");
    hear("BOB> lunch?");
    popup().Check1.set(1);
    popup().response = "left over";
    alice.person.type_reply(popup(), "perhaps");

    alice.person.click(alice.frmMain().dissmissall);

    EXPECT_THAT(popups_on_show(alice), IsEmpty());
    EXPECT_EQ(popup().message.text() + popup().Label3.caption() + popup().response, "");
    EXPECT_EQ(popup().Check1.value(), 1);
    EXPECT_EQ(popup().temp.text(), "perhaps");
    EXPECT_EQ(alice.frmMain().pucount.caption(), "10");
}

TEST_F(PopupWindow, GoesAboveAllOthersAndIsDrawnAtOnce)
{
    int drawn = 0;
    popup().window.repaint.attach([&] { ++drawn; });

    popup().ontop.run();

    EXPECT_EQ(popup().window.stacking, Stacking::on_top);
    EXPECT_EQ(drawn, 1);
}

TEST_F(PopupWindow, GoesBehindEverythingWhenItIsToldToLeaveTheTop)
{
    int drawn = 0;
    popup().window.repaint.attach([&] { ++drawn; });
    popup().ontop.run();

    popup().ontopoff.run();

    EXPECT_EQ(popup().window.stacking, Stacking::at_the_bottom);
    EXPECT_EQ(drawn, 2);
}

TEST_F(PopupWindow, FollowsTheOptionAtEveryLoadOfTheSettings)
{
    EXPECT_EQ(popup().window.stacking, Stacking::at_the_bottom);

    alice.files.put("settings.txt", sim::settings_file("Alice Meyer", {{"KEEPINFRONT", "1"}}));
    alice.enter([&] { alice.frmMain().loadusers.run(); });

    for (forms::Popup const& window : alice.forms().popup) {
        EXPECT_EQ(window.window.stacking, Stacking::on_top);
    }
    EXPECT_EQ(alice.forms().popuplast.window.stacking, Stacking::usual);
}

TEST_F(PopupWindow, StandsForOneMessageEachUpToTen)
{
    for (int message = 0; message < 3; ++message) {
        hear("BOB> hello");
    }
    EXPECT_THAT(popups_on_show(alice), ElementsAre(0, 1, 2));

    alice.person.click(alice.popup(1), alice.popup(1).Command1);
    hear("BOB> again");

    EXPECT_EQ(alice.popup(1).message.text(), "BOB> again");
    EXPECT_EQ(alice.popup(1).punumber, "1");
}

} // namespace
