#include "tests/talk/talk.h"

namespace {

using namespace talk;
using controls::Key;
using testing::ElementsAre;
using testing::IsEmpty;

/// The quick buttons of the main window, 1 to 12.
class QuickSend : public Talk {
protected:
    [[nodiscard]] controls::Button& button(std::size_t number) { return frmMain.qb.at(number); }
    void set_row(std::size_t number, std::string_view text, bool at_once)
    {
        alice.settings().qsendtext.at(number).set_text(text);
        alice.settings().qsendi.at(number).set(at_once ? 1 : 0);
        button(number).enabled = true;
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(QuickSend, ReplacesTheDraft)
{
    alice.person.type("something quite different");
    set_row(5, "Please come see me", false);

    alice.person.click(button(5));

    EXPECT_EQ(frmMain.messagetext.text(), "Please come see me");
    EXPECT_THAT(sent_by(alice), IsEmpty());
}

TEST_F(QuickSend, LeavesTheCaretBehindTheTextAndGivesTheBoxTheFocus)
{
    set_row(5, "Please come see me", false);
    auto const before = frmMain.messagetext.focus.requests();

    alice.person.click(button(5));

    EXPECT_EQ(frmMain.messagetext.focus.requests(), before + 1);
    EXPECT_EQ(frmMain.messagetext.selection_start(), 18U);
    EXPECT_EQ(frmMain.messagetext.selection_length(), 0U);
}

TEST_F(QuickSend, SendsAtOnceWhereItsRowSaysSo)
{
    set_row(4, "Are you busy?", true);
    alice.person.pick("Bob");

    alice.person.click(button(4));

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, bob_id, "ALICE MEYER> Are you busy?")));
}

TEST_F(QuickSend, SendsNothingAtOnceWithoutAnyoneToSendItTo)
{
    set_row(4, "Are you busy?", true);

    alice.person.click(button(4));

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(frmMain.messagetext.text(), "Are you busy?");
}

TEST_F(QuickSend, OfAnEmergencyGoesToAllWithoutASelectedUser)
{
    set_row(11, "Fire!", true);
    button(11).background = {255, 0, 0};

    alice.person.click(button(11));

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, "[ALL]", "ALICE MEYER> (To All) Fire!")));
}

TEST_F(QuickSend, OfAnEmergencyTicksTheBoxEvenWhenItWaits)
{
    set_row(11, "Fire!", false);
    button(11).background = {255, 0, 0};

    alice.person.click(button(11));

    EXPECT_EQ(frmMain.Checkallusers.value(), 1);
    EXPECT_FALSE(frmMain.allusers.enabled);
    EXPECT_EQ(frmMain.messagetext.text(), "Fire!");
}

TEST_F(QuickSend, OfAnEmergencyGoesByItsColourAlone)
{
    set_row(11, "EMERGENCY", false);
    button(11).background = {255, 0, 1};

    alice.person.click(button(11));

    EXPECT_EQ(frmMain.Checkallusers.value(), 0);
}

TEST_F(QuickSend, FollowsItsFunctionKey)
{
    for (std::size_t number = 1; number <= 12; ++number) {
        set_row(number, "text " + std::to_string(number), false);
    }
    alice.person.pick("Bob");
    for (int number = 1; number <= 12; ++number) {
        alice.person.press_key(Key::f1 + number - 1);

        EXPECT_EQ(frmMain.messagetext.text(), "text " + std::to_string(number));
    }
}

TEST_F(QuickSend, HasDeadKeysUntilSomebodyIsPicked)
{
    set_row(1, "text", false);

    alice.person.press_key(Key::f1);

    EXPECT_EQ(frmMain.messagetext.text(), "");
}

TEST_F(QuickSend, ShowsItsWholeTextUnderThePointer)
{
    set_row(7, "Are you ready?", false);

    button(7).pointed.run();

    EXPECT_EQ(button(7).tool_tip, "Are you ready?");
}

TEST_F(QuickSend, SwitchesAutoRespondOff)
{
    set_row(5, "Please come see me", false);
    alice.person.choose(alice.forms().menuform.autores, 0);

    alice.person.click(button(5));

    EXPECT_EQ(frmMain.away.value(), 0);
}

/// The quick answers of a popup, 13 to 24.
class QuickAnswer : public Talk {
protected:
    QuickAnswer() { hear("BOB> lunch?"); }

    void set_row(std::size_t number, std::string_view text, bool at_once)
    {
        alice.settings().qsendtext.at(number).set_text(text);
        alice.settings().qsendi.at(number).set(at_once ? 1 : 0);
        popup.quick(number).enabled = true;
    }

    forms::Popup& popup = alice.popup(0);
};

TEST_F(QuickAnswer, SendsAtOnceWhereItsRowSaysSo)
{
    set_row(17, "I'm at my desk", true);

    alice.person.click(popup, popup.quick(17));

    EXPECT_THAT(
        sent_by(alice),
        ElementsAre(datagram(alice_id, bob_id, "BOB> lunch?\r\nALICE MEYER> I'm at my desk")));
    EXPECT_FALSE(popup.window.visible());
}

TEST_F(QuickAnswer, StandsInTheReplyOtherwise)
{
    set_row(14, "Please take a message", false);
    alice.person.type_reply(popup, "something else");
    auto const before = popup.temp.focus.requests();

    alice.person.click(popup, popup.quick(14));

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(popup.temp.text(), "Please take a message");
    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.temp.focus.requests(), before + 1);
    EXPECT_EQ(popup.temp.selection_start(), 21U);
}

TEST_F(QuickAnswer, StandsInTheReplyBesideAGreyedFlag)
{
    set_row(14, "Please take a message", false);
    alice.settings().qsendi[14].set(2);

    alice.person.click(popup, popup.quick(14));

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(popup.temp.text(), "Please take a message");
}

TEST_F(QuickAnswer, IsThatOfItsOwnNumber)
{
    for (std::size_t number = 13; number <= 24; ++number) {
        set_row(number, "answer " + std::to_string(number), false);
    }
    for (std::size_t number = 13; number <= 24; ++number) {
        alice.person.click(popup, popup.quick(number));

        EXPECT_EQ(popup.temp.text(), "answer " + std::to_string(number));
    }
}

TEST_F(QuickAnswer, ShowsItsWholeTextUnderThePointer)
{
    set_row(24, "Tell them I will call back", false);

    popup.quick(24).pointed.run();

    EXPECT_EQ(popup.quick(24).tool_tip, "Tell them I will call back");
}

TEST_F(QuickAnswer, ReadsItsRowAtEveryPress)
{
    set_row(13, "first", false);
    alice.person.click(popup, popup.quick(13));
    set_row(13, "second", false);

    alice.person.click(popup, popup.quick(13));

    EXPECT_EQ(popup.temp.text(), "second");
}

TEST_F(QuickAnswer, IsCutLikeAnyReply)
{
    set_row(13, std::string(980, 'r'), true);

    alice.person.click(popup, popup.quick(13));

    EXPECT_EQ(last_row(alice)[7], std::string(970, 'r'));
}

TEST_F(QuickAnswer, GoesOutFromTheRecallWindowToo)
{
    set_row(19, "Yes", true);
    auto& recalled = alice.forms().popuplast;
    open_history();
    alice.person.double_click_history(1);

    alice.person.click(recalled, recalled.quick(19));

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, bob_id, "BOB> lunch?\r\nALICE MEYER> Yes")));
    EXPECT_EQ(recalled.message.text(), "BOB> lunch?");
}

} // namespace
