#include "tests/talk/talk.h"

namespace {

using namespace talk;
using controls::Key;
using sim::Person;
using testing::ElementsAre;
using testing::IsEmpty;

/// In every popup, and the recall window is one, the same keys do the same.
class EnterKey : public Talk {
protected:
    EnterKey() { hear("BOB> lunch?"); }

    void enter_sends(bool sends) { alice.frmMain().entersend.set(sends ? 1 : 0); }
    void release(int code, int mask)
    {
        alice.enter([&] { popup.temp.key_up({.code = code, .mask = mask}); });
    }
    [[nodiscard]] static std::string answer(std::string_view text)
    {
        return datagram(alice_id, bob_id, "BOB> lunch?\r\nALICE MEYER> " + std::string(text));
    }

    forms::Popup& popup = alice.popup(0);
};

TEST_F(EnterKey, SendsWhereTheOptionSaysSo)
{
    enter_sends(true);
    alice.person.type_reply(popup, "yes");

    alice.person.press_enter_in(popup);

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("yes\r")));
    EXPECT_FALSE(popup.window.visible());
}

TEST_F(EnterKey, MakesALineWithCtrlWhereTheOptionSaysSo)
{
    enter_sends(true);
    alice.person.type_reply(popup, "yes");

    alice.person.press_enter_in(popup, Person::With::ctrl);

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(popup.temp.text(), "yes\r\n");
    EXPECT_TRUE(popup.window.visible());
}

TEST_F(EnterKey, SendsWithCtrlOtherwise)
{
    alice.person.type_reply(popup, "yes");

    alice.person.press_enter_in(popup, Person::With::ctrl);

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("yes\r")));
}

TEST_F(EnterKey, MakesALineOtherwise)
{
    alice.person.type_reply(popup, "yes");

    alice.person.press_enter_in(popup);

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(popup.temp.text(), "yes\r\n");
}

TEST_F(EnterKey, LeavesTheFirstCharacterOfItsLineEndBehind)
{
    enter_sends(true);
    alice.person.type_reply(popup, "yes");

    alice.person.press_enter_in(popup);

    EXPECT_EQ(popup.temp.text(), "yes\r");
    EXPECT_EQ(last_row(alice)[7], "yes\r");
}

TEST_F(EnterKey, CutsTheLastCharacterWhereverTheCaretIs)
{
    enter_sends(true);
    alice.person.type_reply(popup, "yes");
    popup.temp.select(1, 0);

    alice.person.press_enter_in(popup);

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("y\r\ne")));
}

TEST_F(EnterKey, SendsWhatIsLeftOfAnEmptyReply)
{
    enter_sends(true);
    alice.person.turn_to(popup.window);

    alice.person.press_enter_in(popup);

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("\r")));
}

TEST_F(EnterKey, CutsNothingFromNothing)
{
    enter_sends(true);

    release(Key::enter, 0);

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("")));
}

TEST_F(EnterKey, CountsOnlyCtrlAloneAsCtrl)
{
    constexpr int shift = 1;
    constexpr int alt = 4;
    enter_sends(false);
    for (int const mask : {0, shift, alt, Key::ctrl | shift, Key::ctrl | alt}) {
        release(Key::enter, mask);
    }
    EXPECT_THAT(sent_by(alice), IsEmpty());

    enter_sends(true);
    popup.temp.set_text("yes\r\n");
    release(Key::enter, Key::ctrl | shift);

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("yes\r")));
}

TEST_F(EnterKey, IsTheOnlyKeyThatSendsFromAPopup)
{
    enter_sends(true);
    popup.temp.set_text("yes");
    for (int const code : {10, 27, 80, int{Key::f1}, int{Key::f12}}) {
        release(code, 0);
        release(code, Key::ctrl);
    }

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(popup.temp.text(), "yes");
}

TEST_F(EnterKey, SendsFromTheRecallWindowToo)
{
    enter_sends(true);
    open_history();
    alice.person.double_click_history(1);
    auto& recalled = alice.forms().popuplast;
    alice.person.type_reply(recalled, "yes");

    alice.person.press_enter_in(recalled);

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("yes\r")));
}

TEST_F(EnterKey, CutsTheLastCharacterOfTheDraftToo)
{
    enter_sends(true);
    alice.person.pick("Bob");
    alice.person.type("abc");
    alice.person.put_caret(0);

    alice.person.press_enter();

    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, bob_id, "ALICE MEYER> \r\nab")));
}

} // namespace
