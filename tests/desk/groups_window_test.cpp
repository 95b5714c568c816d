#include "tests/desk/groups_flows.h"

namespace {

using namespace desk;
using namespace flows;
using testing::ElementsAre;
using testing::IsEmpty;

/// The window of the groups: its two ways in, what it shows, and its two ways out.
class GroupsWindow : public ThreeGroups {
protected:
    /// The slots whose members are on show.
    [[nodiscard]] std::vector<std::size_t> lists_on_show()
    {
        std::vector<std::size_t> slots;
        for (std::size_t slot = 0; slot < form().group.size(); ++slot) {
            if (form().group.at(slot).visible) {
                slots.push_back(slot);
            }
        }
        return slots;
    }
    void open_from_menu(std::function<void()> action)
    {
        constexpr std::size_t configure_groups = 4;
        while_open(form().window, std::move(action));
        alice.person.choose(alice.forms().menuform.toolsmenu, configure_groups);
    }
    [[nodiscard]] Lines available() { return form().users.rows(); }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(GroupsWindow, ComesUpBesideTheMainWindowByItsButton)
{
    EXPECT_EQ(frmMain.configgroups.caption, "Config Grps");
    EXPECT_FALSE(form().window.visible());

    open_window();

    EXPECT_TRUE(form().window.visible());
    EXPECT_FALSE(form().window.modal);
    EXPECT_EQ(frmMain.boxopen.value(), 0);
    alice.person.type("The main window still listens.");
}

TEST_F(GroupsWindow, ComesUpInFrontOfAllOthersFromTheMenuAndHoldsTheQueue)
{
    open_from_menu([this] {
        EXPECT_TRUE(form().window.modal);
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        EXPECT_THROW(alice.person.type("nobody can"), sim::Impossible);
        office.segment.inject_to("ROOM12", message(bob_id, alice_id, "BOB> lunch?"));
        office.run_for(4 * tick);
        EXPECT_FALSE(alice.popup(0).window.visible());
        cancel();
    });

    EXPECT_EQ(frmMain.boxopen.value(), 0);
    EXPECT_FALSE(form().window.modal);
    office.run_for(tick);
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(GroupsWindow, WakesTheQueueBehindABoxOfItsOwnThoughItIsStillOpen)
{
    open_from_menu([this] {
        office.segment.inject_to("ROOM12", message(bob_id, alice_id, "BOB> lunch?"));
        office.run_for(4 * tick);
        make("");
        EXPECT_EQ(frmMain.boxopen.value(), 0);
        office.run_for(tick);
        EXPECT_TRUE(alice.popup(0).window.visible());
        cancel();
    });
}

TEST_F(GroupsWindow, HoldsTheQueueWhileABoxOfItsOwnIsOpen)
{
    open_window();
    alice.boxes.will_enter("").after(4 * tick).meanwhile([this] {
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        office.segment.inject_to("ROOM12", message(bob_id, alice_id, "BOB> lunch?"));
    });

    press(form().Command2);

    EXPECT_FALSE(alice.popup(0).window.visible());
    office.run_for(tick);
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(GroupsWindow, ComesUpWithTheFirstGroup)
{
    open_window();

    EXPECT_EQ(form().List1.text(), group_row("ACCOUNTING", 0));
    EXPECT_EQ(form().curgroup, "0");
    EXPECT_THAT(lists_on_show(), ElementsAre(0));
    EXPECT_THAT(available(), ElementsAre("ALICE MEYER", "BOB", "CARL DUNN"));
}

TEST_F(GroupsWindow, ComesUpWithTheFirstGroupEachTime)
{
    open_window();
    choose("SALES");
    save();

    open_window();

    EXPECT_EQ(form().curgroup, "0");
    EXPECT_EQ(form().List1.index(), 0);
    EXPECT_THAT(lists_on_show(), ElementsAre(0));
}

TEST_F(GroupsWindow, StaysWithItsGroupWhenSheComesBackToItFromAnotherWindow)
{
    open_window();
    choose("SALES");

    alice.person.type("a draft");
    alice.person.turn_to(form().window);

    EXPECT_EQ(form().curgroup, "2");
    EXPECT_EQ(form().List1.text(), group_row("SALES", 2));
}

TEST_F(GroupsWindow, ComesUpWithWhoeverIsKnownByThen)
{
    frmMain.userlist.add("[ROOM50\\PETE]=Pete Marsh");

    open_window();

    EXPECT_THAT(available(), ElementsAre("ALICE MEYER", "BOB", "CARL DUNN", "PETE MARSH"));
}

TEST_F(GroupsWindow, ShowsTheMembersOfTheChosenGroupAloneAndOffersTheOthers)
{
    open_window();

    choose("FRIENDS");

    EXPECT_EQ(form().curgroup, "1");
    EXPECT_THAT(lists_on_show(), ElementsAre(1));
    EXPECT_THAT(members(1), ElementsAre("BOB", "CARL DUNN"));
    EXPECT_THAT(available(), ElementsAre("ALICE MEYER"));
}

TEST_F(GroupsWindow, KnowsAMemberByTheNameInAnyCase)
{
    form().group.at(0).add("cArL Dunn");

    open_window();

    EXPECT_THAT(available(), ElementsAre("ALICE MEYER", "BOB"));
}

TEST_F(GroupsWindow, OffersTwoUsersOfOneNameTwice)
{
    frmMain.userlist.add("[ROOM08\\BOB]=BOB");

    open_window();

    EXPECT_THAT(available(), ElementsAre("ALICE MEYER", "BOB", "BOB", "CARL DUNN"));
}

TEST_F(GroupsWindow, ShowsNobodysMembersWithoutGroups)
{
    alice.files.put("groups.txt", groups_file({}));
    alice.enter([this] { form().loadgroups.run(); });

    open_window();

    EXPECT_EQ(form().List1.index(), controls::ListBox::none);
    EXPECT_THAT(lists_on_show(), IsEmpty());
}

TEST_F(GroupsWindow, SavesThenLoadsThenHides)
{
    open_window();
    Lines order;
    alice.journal.switch_on();
    alice.journal.clear();
    form().window.hidden.attach([&] { order = alice.journal.lines(); });

    save();

    EXPECT_THAT(order, ElementsAre("write groups.txt", "read groups.txt"));
    EXPECT_FALSE(form().window.visible());
}

TEST_F(GroupsWindow, IsHiddenBeforeCancelLoads)
{
    open_window();
    Lines order{"not hidden"};
    alice.journal.switch_on();
    alice.journal.clear();
    form().window.hidden.attach([&] { order = alice.journal.lines(); });

    cancel();

    EXPECT_THAT(order, IsEmpty());
    EXPECT_THAT(alice.journal.lines(), ElementsAre("read groups.txt"));
}

TEST_F(GroupsWindow, ThrowsAllEditsAwayByCancel)
{
    auto const before = file();
    open_window();
    choose("FRIENDS");
    add("ALICE");
    take_out("BOB");
    rename("enemies");
    choose("SALES");
    press(form().Command3);
    make("Bakers");

    cancel();

    EXPECT_EQ(file(), before);
    EXPECT_THAT(groups(), ElementsAre(group_row("ACCOUNTING", 0), group_row("FRIENDS", 1),
                                      group_row("SALES", 2)));
    EXPECT_THAT(members(1), ElementsAre("BOB", "CARL DUNN"));
    EXPECT_THAT(members(2), ElementsAre("ALICE MEYER"));
    EXPECT_THAT(form().usedgroups.rows(),
                ElementsAre("1", "1", "1", "0", "0", "0", "0", "0", "0", "0"));
}

} // namespace
