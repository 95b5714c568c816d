#include "tests/desk/groups_flows.h"

namespace {

using namespace desk;
using namespace flows;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// Sending reads the lists that the window of the groups edits, saved or not.
class LiveGroups : public ThreeGroups {
protected:
    void send_to(std::string_view group)
    {
        alice.person.open_tab(1);
        alice.person.pick_group(group);
        alice.person.send("lunch?");
    }
    [[nodiscard]] Lines sent() { return sent_by(alice); }
};

TEST_F(LiveGroups, ReachTheMembersOfTheFile)
{
    send_to("FRIENDS");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "lunch?"),
                                    message(alice_id, carl_id, "lunch?")));
    office.settle();
    EXPECT_EQ(bob.popup(0).message.text(), "lunch?");
    EXPECT_EQ(carl.popup(0).message.text(), "lunch?");
}

TEST_F(LiveGroups, ReachAMemberAddedAndNotYetSaved)
{
    open_window();
    add("BOB"); // to ACCOUNTING

    send_to("ACCOUNTING");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "lunch?")));
}

TEST_F(LiveGroups, ReachHimNoMoreBehindCancel)
{
    open_window();
    add("BOB");
    cancel();

    send_to("ACCOUNTING");

    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(LiveGroups, StandInTheMainWindowAsTheyWereUntilTheSave)
{
    open_window();
    make("Bakers");
    choose("FRIENDS");
    rename("enemies");
    choose("SALES");
    press(form().Command3);

    EXPECT_THAT(on_show(), ElementsAre(group_row("ACCOUNTING", 0), group_row("FRIENDS", 1),
                                       group_row("SALES", 2)));

    save();

    EXPECT_THAT(on_show(), ElementsAre(group_row("ACCOUNTING", 0), group_row("BAKERS", 3),
                                       group_row("ENEMIES", 1)));
}

TEST_F(LiveGroups, ReachNobodyUnderTheNameOfADeletedOne)
{
    open_window();
    choose("SALES");
    press(form().Command3);

    send_to("SALES");

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(alice.history().row(alice.history().count()).at(3), "SALES");
}

TEST_F(LiveGroups, ReachTheNewMembersOfASlotUnderItsOldName)
{
    open_window();
    choose("SALES");
    press(form().Command3);
    make("Bakers");
    choose("Bakers");
    add("CARL DUNN");

    send_to("SALES");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, carl_id, "lunch?")));
}

TEST_F(LiveGroups, FollowTheDirectoryOfTheMoment)
{
    auto& userlist = alice.frmMain().userlist;
    userlist.remove(0); // Bob's row
    send_to("FRIENDS");
    EXPECT_THAT(sent(), ElementsAre(message(alice_id, carl_id, "lunch?")));

    userlist.add("[ROOM99\\BOB]=BOB"); // He has moved.
    send_to("FRIENDS");

    EXPECT_THAT(sent(), Contains(message(alice_id, "[ROOM99\\BOB]", "lunch?")));
}

TEST_F(LiveGroups, SkipAMemberWhoIsNotFound)
{
    form().group.at(0).add("not found");

    send_to("ACCOUNTING");

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

TEST_F(LiveGroups, SkipWholeLinesToo)
{
    form().group.at(0).add("[Group01member]=[ROOM07\\BOB]");

    send_to("ACCOUNTING");

    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(LiveGroups, WakeTheFunctionKeysByAClickOnOne)
{
    alice.person.open_tab(1);
    alice.person.press_key(controls::Key::f1);
    EXPECT_EQ(alice.frmMain().messagetext.text(), "");

    alice.person.pick_group("FRIENDS");
    alice.person.press_key(controls::Key::f1 + 3);

    EXPECT_THAT(alice.frmMain().multiusers.rows(), IsEmpty()); // The send has emptied it.
    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "Are you busy?"),
                                    message(alice_id, carl_id, "Are you busy?")));
}

TEST_F(LiveGroups, LoseTheSelectionInTheMainWindowAtEachLoad)
{
    alice.person.open_tab(1);
    alice.person.pick_group("FRIENDS");
    open_window();

    cancel();

    EXPECT_EQ(alice.frmMain().List1.index(), controls::ListBox::none);
    EXPECT_THAT(on_show(), Not(IsEmpty()));
}

} // namespace
