#include "tests/desk/groups_flows.h"

namespace {

using namespace desk;
using namespace flows;
using testing::ElementsAre;
using testing::HasSubstr;

/// What becomes of members between the file, the lists and the directory.
class GroupMembers : public Groups {
protected:
    void save_unchanged()
    {
        open_window();
        save();
    }
    void forget(std::string_view row)
    {
        auto& list = alice.frmMain().userlist;
        for (int index = list.count() - 1; index >= 0; --index) {
            if (list.row(index) == row) {
                list.remove(index);
            }
        }
    }
};

TEST_F(GroupMembers, AreSavedByTheirIdentity)
{
    auto const saved = groups_file({"SALES", "", "BAKERS"}, {"[Group01member]=[ROOM12\\ALICE]",
                                                             "[Group01member]=[ROOM07\\BOB]",
                                                             "[Group03member]=[ROOM33\\CARL]"});
    open_with(saved);

    save_unchanged();

    EXPECT_EQ(file(), saved);
}

TEST_F(GroupMembers, StandAndAreSavedInTheOrderOfTheirNames)
{
    open_with(
        groups_file({"SALES"}, {"[Group01member]=[ROOM33\\CARL]", "[Group01member]=[ROOM12\\ALICE]",
                                "[Group01member]=[ROOM07\\BOB]"}));

    EXPECT_THAT(members(0), ElementsAre("ALICE MEYER", "BOB", "CARL DUNN"));

    save_unchanged();

    EXPECT_EQ(file(), groups_file({"SALES"}, {"[Group01member]=[ROOM12\\ALICE]",
                                              "[Group01member]=[ROOM07\\BOB]",
                                              "[Group01member]=[ROOM33\\CARL]"}));
}

TEST_F(GroupMembers, WhomTheDirectoryDoesNotKnowAreLostForGood)
{
    open_with(groups_file({"SALES"}, {"[Group01member]=[ROOM50\\PETE]"}));
    EXPECT_THAT(members(0), ElementsAre("not found"));

    save_unchanged();

    EXPECT_EQ(file(), groups_file({"SALES"}, {"[Group01member]=[---]"}));
    EXPECT_THAT(members(0), ElementsAre("not found"));

    alice.frmMain().userlist.add("[ROOM50\\PETE]=PETE");
    save_unchanged();

    EXPECT_EQ(file(), groups_file({"SALES"}, {"[Group01member]=[---]"}));
}

TEST_F(GroupMembers, StayUnknownThoughTheyAreHeardUntilTheNextLoad)
{
    open_with(groups_file({"SALES"}, {"[Group01member]=[ROOM50\\PETE]"}));
    auto& pete = office.host("ROOM50", "pete");
    pete.prepare("Pete Marsh", {.users = known_users});
    pete.start();
    office.settle();
    EXPECT_THAT(alice.frmMain().userlist.rows(), testing::Contains("[ROOM50\\PETE]=PETE MARSH"));

    EXPECT_THAT(members(0), ElementsAre("not found"));

    open_window();
    cancel();

    EXPECT_THAT(members(0), ElementsAre("PETE MARSH"));
}

TEST_F(GroupMembers, KeepTheirNameWhenTheyLeaveTheDirectoryBehindTheLoad)
{
    open_with(groups_file({"SALES"}, {"[Group01member]=[ROOM07\\BOB]"}));

    forget("[ROOM07\\BOB]=BOB");

    EXPECT_THAT(members(0), ElementsAre("BOB"));

    save_unchanged();

    EXPECT_EQ(file(), groups_file({"SALES"}, {"[Group01member]=[---]"}));
    EXPECT_THAT(members(0), ElementsAre("not found"));
}

TEST_F(GroupMembers, MayBeWrittenInSmallLetters)
{
    open_with(groups_file({"SALES"}, {"[Group01member]=[room07\\bob]"}));

    EXPECT_THAT(members(0), ElementsAre("BOB"));
}

TEST_F(GroupMembers, AreFoundByTheWholeIdentityOnly)
{
    open_with(groups_file({"SALES"}, {"[Group01member]=[ROOM07\\BOB", "[Group01member]=BOB",
                                      "[Group01member]=[ROOM07\\BOB] ", "[Group01member]="}));

    EXPECT_THAT(members(0), ElementsAre("not found", "not found", "not found", "not found"));
}

TEST_F(GroupMembers, TakeTheNameOfTheFirstRowWithTheirIdentity)
{
    alice.files.put("users.txt", sim::lines({"[ROOM07\\BOB]=ROBERT=BOB", "[ROOM07\\BOB]=ZACHARY",
                                             "[ROOM12\\ALICE]=ALICE MEYER"}));
    alice.files.put("groups.txt", groups_file({"SALES"}, {"[Group01member]=[ROOM07\\BOB]"}));

    start_alice();

    EXPECT_THAT(members(0), ElementsAre("ROBERT=BOB"));
}

TEST_F(GroupMembers, StandAsWholeLinesBesideAnEmptyDirectory)
{
    alice.files.erase("users.txt");
    alice.files.put("groups.txt", groups_file({"SALES"}, {"[Group01member]=[ROOM07\\BOB]",
                                                          "[Group01member]=[room33\\carl]"}));
    start_alice();
    office.settle();

    EXPECT_THAT(members(0),
                ElementsAre("[Group01member]=[ROOM07\\BOB]", "[Group01member]=[room33\\carl]"));

    save_unchanged();

    EXPECT_EQ(file(), groups_file({"SALES"}, {"[Group01member]=[---]", "[Group01member]=[---]"}));
}

TEST_F(GroupMembers, CalledAllAreSavedAsEverybody)
{
    alice.files.put("users.txt", sim::lines({"[ROOM07\\BOB]=BOB", "[ROOM50\\PETE]=ALL"}));
    alice.files.put("groups.txt", groups_file({"SALES"}, {"[Group01member]=[ROOM50\\PETE]"}));
    start_alice();
    EXPECT_THAT(members(0), ElementsAre("ALL"));

    forget("[ROOM50\\PETE]=ALL");
    save_unchanged();

    EXPECT_EQ(file(), groups_file({"SALES"}, {"[Group01member]=[ALL]"}));
    EXPECT_THAT(members(0), ElementsAre("not found"));
}

TEST_F(GroupMembers, AreSavedAsTheFirstUserWhoseNameEndsInTheirs)
{
    alice.files.put("users.txt",
                    sim::lines({"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM40\\MEYER]=MEYER"}));
    alice.files.put("groups.txt", groups_file({"SALES"}, {"[Group01member]=[ROOM40\\MEYER]"}));
    start_alice();
    EXPECT_THAT(members(0), ElementsAre("MEYER"));

    save_unchanged();

    EXPECT_EQ(file(), groups_file({"SALES"}, {"[Group01member]=[ROOM12\\ALICE]"}));
    EXPECT_THAT(members(0), ElementsAre("ALICE MEYER"));
}

TEST_F(GroupMembers, OfASlotWithoutANameAreNotSaved)
{
    open_with(groups_file({"SALES"}, {"[Group04member]=[ROOM07\\BOB]"}));

    save_unchanged();

    EXPECT_EQ(file(), groups_file({"SALES"}));
}

TEST_F(GroupMembers, MayBeNamedTwice)
{
    auto const twice =
        groups_file({"SALES"}, {"[Group01member]=[ROOM07\\BOB]", "[Group01member]=[ROOM07\\BOB]"});
    open_with(twice);

    EXPECT_THAT(members(0), ElementsAre("BOB", "BOB"));

    save_unchanged();

    EXPECT_EQ(file(), twice);
}

/// What Save writes besides members.
class GroupsSave : public GroupMembers {};

TEST_F(GroupsSave, LeavesNoEmptyLineAtTheEnd)
{
    open();
    EXPECT_THAT(file(), testing::EndsWith("[Group10name  ]=\r\n\r\n"));

    save_unchanged();

    EXPECT_EQ(file(), groups_file({"ACCOUNTING", "FRIENDS", "SALES"}));
    EXPECT_THAT(file(), testing::EndsWith("[Group09name  ]=\r\n[Group10name  ]=\r\n"));
}

TEST_F(GroupsSave, WritesNamesInCapitalsOfTheOfficesLetters)
{
    open_with(groups_file({"k\xFC"
                           "che"}));

    save_unchanged();

    EXPECT_THAT(file(), HasSubstr("[Group01name  ]=K\xDC"
                                  "CHE\r\n"));
    EXPECT_THAT(groups(), ElementsAre(group_row("K\xDC"
                                                "CHE",
                                                0)));
}

TEST_F(GroupsSave, WritesBothNamesOfASlotThatHasTwo)
{
    open_with("[Group01name  ]=SALES\r\n[Group01name  ]=BAKERS\r\n");

    save_unchanged();

    EXPECT_THAT(file(), testing::StartsWith("[Group01name  ]=BAKERS\r\n[Group01name  ]=SALES\r\n"
                                            "[Group02name  ]=\r\n"));
}

TEST_F(GroupsSave, OntoAReadOnlyDiskEndsTheProgramWithItsReport)
{
    open();
    open_window();
    alice.files.unwritable = {"groups.txt"};

    save();

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(alice.status(), 1);
}

} // namespace
