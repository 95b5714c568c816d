#include "flows.h"

namespace {

using namespace flows;
using controls::Key;
using sim::Person;
using testing::ElementsAre;
using testing::IsEmpty;

/// What the keys do in the compose box, and what a draft does to the window.
class ComposeBox : public TwoPeople {
protected:
    [[nodiscard]] std::vector<std::string> sent() const
    {
        return office.segment.texts_from("ROOM12");
    }

    /// Counts how often quick button `number` is pressed.
    void count_presses(std::size_t number, int& presses)
    {
        frmMain.qb.at(number).clicked.attach([&presses] { ++presses; });
    }

    forms::FrmMain& frmMain = alice.frmMain();
    controls::TextBox& draft = frmMain.messagetext;
};

TEST_F(ComposeBox, WarnsBeyondTheLimit)
{
    alice.person.type(std::string(970, 'x'));
    EXPECT_FALSE(frmMain.Label5.visible);
    EXPECT_FALSE(frmMain.Frame2.visible);

    alice.person.type("x");
    EXPECT_TRUE(frmMain.Label5.visible);
    EXPECT_TRUE(frmMain.Frame2.visible);
    EXPECT_EQ(frmMain.Label5.caption(), "Message length exceeded");
    EXPECT_EQ(draft.length(), 971U);
}

TEST_F(ComposeBox, TakesTheWarningBack)
{
    alice.person.type(std::string(971, 'x'));

    alice.enter([this] { draft.cut_last_character(); });

    EXPECT_FALSE(frmMain.Label5.visible);
    EXPECT_FALSE(frmMain.Frame2.visible);
    EXPECT_EQ(frmMain.Label5.caption(), "");
}

TEST_F(ComposeBox, WhoeverTypesIsBack)
{
    alice.enter([this] { frmMain.away.set(1); });
    EXPECT_TRUE(frmMain.Label5.visible);

    alice.person.type("H");

    EXPECT_EQ(frmMain.away.value(), 0);
    EXPECT_FALSE(frmMain.Label5.visible);
    EXPECT_TRUE(alice.forms().menuform.autores[4].checked);
}

TEST_F(ComposeBox, TheWarningStandsWhereTheBannerWentWithTheSameChange)
{
    alice.enter([this] { frmMain.away.set(1); });

    alice.enter([this] { draft.set_text(std::string(971, 'x')); });

    EXPECT_EQ(frmMain.away.value(), 0);
    EXPECT_EQ(frmMain.Label5.caption(), "Message length exceeded");
    EXPECT_TRUE(frmMain.Label5.visible);
    EXPECT_TRUE(frmMain.Frame2.visible);
}

TEST_F(ComposeBox, GetsTheCaretBehindItsTextWithTheFocus)
{
    alice.person.type("Hello");
    draft.select(0, 3);

    alice.enter([this] { draft.focus.set(); });

    EXPECT_EQ(draft.selection_start(), 5U);
    EXPECT_EQ(draft.selection_length(), 0U);
}

TEST_F(ComposeBox, EnterSendsWhenTheOptionSaysSo)
{
    frmMain.entersend.set(1);
    alice.person.pick("Bob");
    alice.person.type("Hello");

    alice.person.press_enter();

    // One character of the line end was cut, the other one stays.
    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "ALICE MEYER> Hello\r")));
    EXPECT_EQ(draft.text(), "");
}

TEST_F(ComposeBox, CtrlEnterMakesALineWhenEnterSends)
{
    frmMain.entersend.set(1);
    alice.person.pick("Bob");
    alice.person.type("Hello");

    alice.person.press_enter(Person::With::ctrl);

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(draft.text(), "Hello\r\n");
}

TEST_F(ComposeBox, CtrlEnterSendsOtherwise)
{
    alice.person.pick("Bob");
    alice.person.type("Hello");

    alice.person.press_enter(Person::With::ctrl);

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "ALICE MEYER> Hello\r")));
}

TEST_F(ComposeBox, EnterMakesALineOtherwise)
{
    alice.person.pick("Bob");
    alice.person.type("Hello");

    alice.person.press_enter();

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(draft.text(), "Hello\r\n");
}

TEST_F(ComposeBox, ShiftAndAltAreNotCtrl)
{
    alice.person.pick("Bob");
    alice.person.type("Hello");

    alice.enter([this] { draft.key_up({.code = Key::enter, .mask = 1}); });
    alice.enter([this] { draft.key_up({.code = Key::enter, .mask = 4}); });
    EXPECT_THAT(sent(), IsEmpty());

    alice.enter([this] { draft.key_up({.code = Key::enter, .mask = 3}); });
    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "ALICE MEYER> Hell")));
}

TEST_F(ComposeBox, TheLastCharacterIsCutWhereverTheCaretStands)
{
    frmMain.entersend.set(1);
    alice.person.pick("Bob");
    alice.person.type("Hello");
    alice.person.put_caret(2);

    alice.person.press_enter();

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "ALICE MEYER> He\r\nll")));
}

TEST_F(ComposeBox, EnterInAnEmptyBoxSendsTheRestOfItsLineEnd)
{
    frmMain.entersend.set(1);
    alice.person.pick("Bob");

    alice.person.press_enter();

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "ALICE MEYER> \r")));
}

TEST_F(ComposeBox, TheKeysAreDeadUntilSomebodyIsClicked)
{
    int presses = 0;
    count_presses(1, presses);
    frmMain.entersend.set(1);
    alice.person.type("Hello");

    alice.person.press_enter();
    alice.person.press_key(Key::f1);

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(draft.text(), "Hello\r\n");
}

TEST_F(ComposeBox, TheKeysAreDeadWithOnlyTheBoxForAllTicked)
{
    int presses = 0;
    count_presses(1, presses);
    frmMain.entersend.set(1);
    alice.person.tick_all();
    alice.person.type("Hello");

    alice.person.press_enter();
    alice.person.press_key(Key::f1);

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(presses, 0);
}

TEST_F(ComposeBox, TheKeysWakeWithAClickOnAGroup)
{
    int presses = 0;
    count_presses(1, presses);
    frmMain.List1.add("Team" + std::string(30, ' ') + "0");
    alice.person.open_tab(1);

    alice.person.pick_group("Team");
    alice.person.press_key(Key::f1);

    EXPECT_EQ(presses, 1);
}

TEST_F(ComposeBox, TheKeysAreDeadAgainBehindASendToAGroup)
{
    // Every send fills the working copy from the users' tab, also one to a group.
    int presses = 0;
    count_presses(1, presses);
    frmMain.List1.add("Team" + std::string(30, ' ') + "0");
    alice.person.open_tab(1);
    alice.person.pick_group("Team");

    alice.person.send("Hello");
    alice.person.press_key(Key::f1);

    EXPECT_THAT(frmMain.multiusers.rows(), IsEmpty());
    EXPECT_EQ(presses, 0);
}

TEST_F(ComposeBox, TheFunctionKeysPressTheTwelveQuickButtons)
{
    Lines pressed;
    for (std::size_t number = 1; number <= 12; ++number) {
        frmMain.qb.at(number).clicked.attach(
            [&pressed, number] { pressed.push_back(std::to_string(number)); });
    }
    alice.person.pick("Bob");

    for (int code = Key::f1; code <= Key::f12; ++code) {
        alice.person.press_key(code);
    }
    alice.person.press_key(Key::f1 - 1);
    alice.person.press_key(Key::f12 + 1);

    EXPECT_THAT(pressed,
                ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"));
}

TEST_F(ComposeBox, AClickOnTheUsersTakesThemOverAndGivesTheFocusBack)
{
    auto const requests = draft.focus.requests();

    alice.person.pick({"Bob", "Alice Meyer"});

    EXPECT_THAT(frmMain.multiusers.rows(), ElementsAre("Alice Meyer", "Bob"));
    EXPECT_EQ(draft.focus.requests(), requests + 1);

    alice.person.pick("Bob");
    EXPECT_THAT(frmMain.multiusers.rows(), ElementsAre("Bob"));
}

TEST_F(ComposeBox, AClickOnAGroupPutsOneEmptyRowInPlaceOfTheUsers)
{
    frmMain.List1.add("Team" + std::string(30, ' ') + "0");
    alice.person.pick({"Alice Meyer", "Bob"});
    alice.person.open_tab(1);

    alice.person.pick_group("Team");

    EXPECT_THAT(frmMain.multiusers.rows(), ElementsAre(""));
}

TEST_F(ComposeBox, AClickOnAGroupGivesTheFocusBack)
{
    frmMain.List1.add("Team" + std::string(30, ' ') + "0");
    alice.person.open_tab(1);
    auto const requests = draft.focus.requests();

    alice.person.pick_group("Team");

    EXPECT_EQ(draft.focus.requests(), requests + 1);
}

} // namespace
