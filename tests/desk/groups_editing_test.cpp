#include "tests/desk/groups_flows.h"

namespace {

using namespace desk;
using namespace flows;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int none = controls::ListBox::none;

/// The buttons of the window of the groups.
class GroupsEditing : public ThreeGroups {
protected:
    GroupsEditing() { open_window(); }

    [[nodiscard]] sim::ScriptedBoxes::Shown const& box() { return alice.boxes.shown().back(); }
    void delete_group(std::string_view name)
    {
        choose(name);
        press(form().Command3);
    }
};

TEST_F(GroupsEditing, HasItsCaptions)
{
    Lines captions;
    for (auto const* button :
         {&form().Command4, &form().Command1, &form().Command2, &form().Command5, &form().Command3,
          &form().closebtn, &form().Command6}) {
        captions.push_back(button->caption);
    }
    EXPECT_THAT(captions, ElementsAre("<", ">", "New Group", "Change Name", "Delete Group", "Save",
                                      "Cancel"));
}

TEST_F(GroupsEditing, MovesAUserIntoTheGroup)
{
    choose("FRIENDS");

    add("ALICE MEYER");

    EXPECT_THAT(members(1), ElementsAre("ALICE MEYER", "BOB", "CARL DUNN"));
    EXPECT_THAT(form().users.rows(), IsEmpty());
}

TEST_F(GroupsEditing, MovesAMemberBackToTheUsers)
{
    choose("FRIENDS");

    take_out("BOB");

    EXPECT_THAT(members(1), ElementsAre("CARL DUNN"));
    EXPECT_THAT(form().users.rows(), ElementsAre("ALICE MEYER", "BOB"));
}

TEST_F(GroupsEditing, MovesNobodyWhereNobodyIsSelected)
{
    choose("FRIENDS");

    press(form().Command4);
    press(form().Command1);

    EXPECT_THAT(members(1), ElementsAre("BOB", "CARL DUNN"));
    EXPECT_THAT(form().users.rows(), ElementsAre("ALICE MEYER"));
}

TEST_F(GroupsEditing, MovesTheSelectedOneOnlyOnce)
{
    choose("FRIENDS");
    take_out("BOB");

    press(form().Command1);

    EXPECT_THAT(members(1), ElementsAre("CARL DUNN"));
}

TEST_F(GroupsEditing, DropsAMemberWhoIsNotFoundWithoutOfferingHim)
{
    form().group.at(1).add("not found");
    choose("FRIENDS");

    take_out("not found");

    EXPECT_THAT(members(1), ElementsAre("BOB", "CARL DUNN"));
    EXPECT_THAT(form().users.rows(), ElementsAre("ALICE MEYER"));
}

TEST_F(GroupsEditing, AsksForTheNameOfANewGroup)
{
    make("Bakers");

    EXPECT_EQ(box().title, "Add Group");
    EXPECT_EQ(box().text, "Please new Group Name:\r\n");
    EXPECT_EQ(box().default_text, "");
    EXPECT_FALSE(box().buttons.has_value());
}

TEST_F(GroupsEditing, ShowsANewGroupAsTypedUntilItIsSaved)
{
    make("Bakers");

    EXPECT_THAT(groups(), ElementsAre(group_row("ACCOUNTING", 0), group_row("Bakers", 3),
                                      group_row("FRIENDS", 1), group_row("SALES", 2)));
    EXPECT_EQ(form().usedgroups.row(3), "1");

    save();

    EXPECT_THAT(groups(), ElementsAre(group_row("ACCOUNTING", 0), group_row("BAKERS", 3),
                                      group_row("FRIENDS", 1), group_row("SALES", 2)));
}

TEST_F(GroupsEditing, LeavesTheChosenGroupChosenBehindANewOne)
{
    choose("FRIENDS");

    make("Bakers");

    EXPECT_EQ(form().curgroup, "1");
    EXPECT_EQ(form().List1.text(), group_row("FRIENDS", 1));
}

TEST_F(GroupsEditing, MakesNoGroupWithoutAName)
{
    make("");

    EXPECT_THAT(groups(), SizeIs(3));
    EXPECT_EQ(form().usedgroups.row(3), "0");
}

TEST_F(GroupsEditing, MakesTenGroupsAtMost)
{
    for (int slot = 3; slot < 10; ++slot) {
        make("Group " + std::to_string(slot));
    }
    alice.boxes.will_answer(platform::Answer::ok);

    press(form().Command2);

    EXPECT_EQ(box().text, "10 groups max!");
    EXPECT_EQ(box().buttons, platform::Buttons::ok);
    EXPECT_THAT(alice.boxes.shown(), SizeIs(8));
    EXPECT_THAT(groups(), SizeIs(10));
    EXPECT_THAT(form().usedgroups.rows(), Each("1"));
}

TEST_F(GroupsEditing, GivesANewGroupTheLowestFreeSlotAndItsPlaceByName)
{
    delete_group("FRIENDS");

    make("zebras");

    EXPECT_THAT(groups(), ElementsAre(group_row("ACCOUNTING", 0), group_row("SALES", 2),
                                      group_row("zebras", 1)));
    save();
    EXPECT_THAT(file(), testing::StartsWith("[Group01name  ]=ACCOUNTING\r\n"
                                            "[Group02name  ]=ZEBRAS\r\n"
                                            "[Group03name  ]=SALES\r\n"
                                            "[Group04name  ]=\r\n"));
}

TEST_F(GroupsEditing, DoesNotClearTheMembersThatANewGroupFinds)
{
    form().group.at(3).add("BOB");

    make("Bakers");
    save();

    EXPECT_THAT(members(3), ElementsAre("BOB"));
    EXPECT_THAT(file(), testing::HasSubstr("[Group04member]=[ROOM07\\BOB]\r\n"));
}

TEST_F(GroupsEditing, AsksForAnotherNameBesideThePresentOne)
{
    choose("FRIENDS");

    rename("");

    EXPECT_EQ(box().title, "Change Group Name");
    EXPECT_EQ(box().text, "Please new enter Group Name:\r\n");
    EXPECT_EQ(box().default_text, "FRIENDS");
    EXPECT_THAT(groups(), ElementsAre(group_row("ACCOUNTING", 0), group_row("FRIENDS", 1),
                                      group_row("SALES", 2)));
    EXPECT_EQ(form().List1.text(), group_row("FRIENDS", 1));
}

TEST_F(GroupsEditing, ChangesANameToCapitalsAtOnce)
{
    choose("FRIENDS");

    rename("zebra keepers");

    EXPECT_THAT(groups(), ElementsAre(group_row("ACCOUNTING", 0), group_row("SALES", 2),
                                      group_row("ZEBRA KEEPERS", 1)));
    EXPECT_THAT(members(1), ElementsAre("BOB", "CARL DUNN"));
    EXPECT_EQ(form().curgroup, "1");
}

TEST_F(GroupsEditing, ChangesNoNameWithoutASelectedGroup)
{
    choose("FRIENDS");
    rename("enemies"); // The new row is not selected.

    press(form().Command5);
    press(form().Command3);

    EXPECT_THAT(alice.boxes.shown(), SizeIs(1));
    EXPECT_THAT(groups(), SizeIs(3));
}

TEST_F(GroupsEditing, DeletesAGroupWithoutAsking)
{
    delete_group("SALES");

    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_THAT(groups(), ElementsAre(group_row("ACCOUNTING", 0), group_row("FRIENDS", 1)));
    EXPECT_THAT(members(2), IsEmpty());
    EXPECT_THAT(form().usedgroups.rows(),
                ElementsAre("1", "1", "0", "0", "0", "0", "0", "0", "0", "0"));
}

TEST_F(GroupsEditing, GoesToTheGroupBeforeADeletedOne)
{
    delete_group("SALES");

    EXPECT_EQ(form().List1.text(), group_row("FRIENDS", 1));
    EXPECT_EQ(form().curgroup, "1");
    EXPECT_TRUE(form().group.at(1).visible);
    EXPECT_FALSE(form().group.at(2).visible);
    EXPECT_THAT(form().users.rows(), ElementsAre("ALICE MEYER"));
}

TEST_F(GroupsEditing, StaysOnTheFreedSlotBehindTheFirstGroup)
{
    delete_group("ACCOUNTING");

    EXPECT_EQ(form().List1.index(), none);
    EXPECT_EQ(form().curgroup, "0");
    EXPECT_TRUE(form().group.at(0).visible);

    add("BOB");
    make("Bakers");
    save();

    EXPECT_THAT(groups(), ElementsAre(group_row("BAKERS", 0), group_row("FRIENDS", 1),
                                      group_row("SALES", 2)));
    EXPECT_THAT(members(0), ElementsAre("BOB"));
}

TEST_F(GroupsEditing, LosesWhoIsAddedToAFreedSlotThatStaysFree)
{
    delete_group("ACCOUNTING");
    add("BOB");

    save();

    EXPECT_THAT(members(0), IsEmpty());
    EXPECT_THAT(file(), testing::Not(testing::HasSubstr("[Group01member]")));
}

TEST_F(GroupsEditing, OffersTheUsersOnShowBehindTheLastGroup)
{
    alice.frmMain().userlist.add("[ROOM50\\PETE]=PETE MARSH"); // Known, but not on show.
    delete_group("SALES");
    delete_group("FRIENDS");

    delete_group("ACCOUNTING");

    EXPECT_THAT(groups(), IsEmpty());
    EXPECT_THAT(form().users.rows(), ElementsAre("Alice Meyer", "Bob", "Carl Dunn"));
}

TEST_F(GroupsEditing, SavesNoGroupAtAll)
{
    for (auto const* name : {"SALES", "FRIENDS", "ACCOUNTING"}) {
        delete_group(name);
    }

    save();

    EXPECT_EQ(file(), groups_file({}));
    EXPECT_THAT(on_show(), IsEmpty());
}

} // namespace
