#include "tests/desk/groups_flows.h"

#include <ctime>

namespace {

using namespace desk;
using namespace flows;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class GroupsFile : public Groups {};

TEST_F(GroupsFile, IsWrittenWithThreeGroupsAndALineMoreWhenThereIsNone)
{
    open();

    EXPECT_EQ(file(), "[Group01name  ]=ACCOUNTING\r\n"
                      "[Group02name  ]=FRIENDS\r\n"
                      "[Group03name  ]=SALES\r\n"
                      "[Group04name  ]=\r\n"
                      "[Group05name  ]=\r\n"
                      "[Group06name  ]=\r\n"
                      "[Group07name  ]=\r\n"
                      "[Group08name  ]=\r\n"
                      "[Group09name  ]=\r\n"
                      "[Group10name  ]=\r\n"
                      "\r\n");
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

TEST_F(GroupsFile, GivesAFirstStartThreeGroupsWithoutMembers)
{
    open();

    EXPECT_THAT(groups(), ElementsAre("ACCOUNTING                              0",
                                      "FRIENDS                              1",
                                      "SALES                              2"));
    EXPECT_EQ(on_show(), groups());
    EXPECT_THAT(form().usedgroups.rows(),
                ElementsAre("1", "1", "1", "0", "0", "0", "0", "0", "0", "0"));
    for (std::size_t slot = 0; slot < 10; ++slot) {
        EXPECT_THAT(members(slot), IsEmpty());
    }
}

TEST_F(GroupsFile, NamesTheMembersAsTheDirectoryDoes)
{
    open_with(groups_file({"ACCOUNTING", "FRIENDS"},
                          {"[Group02member]=[ROOM07\\BOB]", "[Group01member]=[ROOM33\\CARL]"}));

    EXPECT_THAT(members(0), ElementsAre("CARL DUNN"));
    EXPECT_THAT(members(1), ElementsAre("BOB"));
}

TEST_F(GroupsFile, IsReadInAnyOrder)
{
    open_with("[Group10member]=[ROOM07\\BOB]\r\n"
              "[Group10name  ]=ZEBRAS\r\n"
              "[Group02name  ]=BAKERS\r\n"
              "[Group02member]=[ROOM33\\CARL]\r\n"
              "[Group10member]=[ROOM12\\ALICE]\r\n"
              "[Group05name  ]=ACTORS\r\n");

    EXPECT_THAT(groups(), ElementsAre(group_row("ACTORS", 4), group_row("BAKERS", 1),
                                      group_row("ZEBRAS", 9)));
    EXPECT_EQ(on_show(), groups());
    EXPECT_THAT(form().usedgroups.rows(),
                ElementsAre("0", "1", "0", "0", "1", "0", "0", "0", "0", "1"));
    EXPECT_THAT(members(1), ElementsAre("CARL DUNN"));
    EXPECT_THAT(members(9), ElementsAre("ALICE MEYER", "BOB"));
}

TEST_F(GroupsFile, LosesANameFromItsCommaOnAtTheNextLoad)
{
    open_with(groups_file({"BAKERS, BREWERS"}, {"[Group01member]=[ROOM07\\BOB]"}));

    EXPECT_THAT(groups(), ElementsAre(group_row("BAKERS", 0)));
    EXPECT_THAT(members(0), ElementsAre("BOB"));
}

TEST_F(GroupsFile, ReadsALineBehindACommaLikeAnyOther)
{
    open_with("[Group01name  ]=BAKERS,[Group04name  ]=BREWERS\r\n");

    EXPECT_THAT(groups(), ElementsAre(group_row("BAKERS", 0), group_row("BREWERS", 3)));
}

TEST_F(GroupsFile, SkipsBlanksAndQuotesBeforeAKey)
{
    open_with("   [Group01name  ]=BAKERS\r\n\"[Group02name  ]=BREWERS, MALTSTERS\"\r\n");

    EXPECT_THAT(groups(), ElementsAre(group_row("BAKERS", 0), group_row("BREWERS, MALTSTERS", 1)));
}

TEST_F(GroupsFile, KeepsBlanksAndQuotesInAName)
{
    open_with("[Group01name  ]=  \"OLD\" BAKERS \r\n");

    EXPECT_THAT(groups(), ElementsAre(group_row("  \"OLD\" BAKERS ", 0)));
}

TEST_F(GroupsFile, HasLinesThatSayNothing)
{
    open_with(
        "[Group00name  ]=A\r\n[Group11name  ]=B\r\n[Group1name   ]=C\r\n"
        "[group01name  ]=D\r\n[Group01NAME  ]=E\r\n[Group01name ]=F\r\n"
        "[Group01names ]=G\r\n[Group01member=]H\r\n[Group-1name  ]=I\r\n[Group 1name  ]=J\r\n"
        "[Group+1name  ]=K\r\n[Group1.name  ]=L\r\nGroup01name  ]=M\r\n\r\nSALES\r\n[Group01");

    EXPECT_THAT(groups(), IsEmpty());
    EXPECT_THAT(form().usedgroups.rows(), Each("0"));
    EXPECT_THAT(members(0), IsEmpty());
}

TEST_F(GroupsFile, LeavesASlotWithoutANameUnused)
{
    open_with("[Group01name  ]=\r\n[Group02name  ]=SALES\r\n");

    EXPECT_THAT(groups(), ElementsAre(group_row("SALES", 1)));
    EXPECT_EQ(form().usedgroups.row(0), "0");
}

TEST_F(GroupsFile, HonoursMembersOfASlotWithoutAName)
{
    open_with("[Group04member]=[ROOM07\\BOB]\r\n");

    EXPECT_THAT(members(3), ElementsAre("BOB"));
    EXPECT_EQ(form().usedgroups.row(3), "0");
}

TEST_F(GroupsFile, MakesTwoRowsOfASlotWithTwoNames)
{
    open_with("[Group01name  ]=SALES\r\n[Group01name  ]=BAKERS\r\n");

    EXPECT_THAT(groups(), ElementsAre(group_row("BAKERS", 0), group_row("SALES", 0)));
    EXPECT_THAT(form().usedgroups.rows(), SizeIs(10));
}

TEST_F(GroupsFile, NeedsNoLineEndAtItsEndNorCarriageReturns)
{
    open_with("[Group01name  ]=BAKERS\n[Group01member]=[ROOM07\\BOB]\n[Group02name  ]=SALES");

    EXPECT_THAT(groups(), ElementsAre(group_row("BAKERS", 0), group_row("SALES", 1)));
    EXPECT_THAT(members(0), ElementsAre("BOB"));
}

TEST_F(GroupsFile, MayBeEmpty)
{
    open_with("");

    EXPECT_THAT(groups(), IsEmpty());
    EXPECT_EQ(file(), "");
}

TEST_F(GroupsFile, MayBeNonsense)
{
    std::string nonsense;
    for (int byte = 0; byte < 100'000; ++byte) {
        nonsense += static_cast<char>(byte * 7919 >> 3);
    }

    open_with(nonsense + "\r\n[Group01name  ]=" + nonsense);

    EXPECT_TRUE(alice.running());
}

TEST_F(GroupsFile, MayHaveMegabytesOfRowsInAnyOrder)
{
    std::string large;
    for (int line = 0; line < 20'000; ++line) {
        large += "[Group01member]=[ROOM33\\CARL]\r\n[Group01member]=[ROOM07\\BOB]\r\n"
                 "[Group02name  ]=G" +
                 std::to_string(line * 7919 % 20'000) + "\r\n";
    }
    auto const before = std::clock();

    open_with(large);
    open_window();
    choose("G777 ");

    EXPECT_THAT(members(0), SizeIs(40'000));
    EXPECT_THAT(on_show(), SizeIs(20'000));
    EXPECT_EQ(on_show()[1], group_row("G1", 1));
    EXPECT_LT((std::clock() - before) / CLOCKS_PER_SEC, 20);
}

TEST_F(GroupsFile, ThatCannotBeReadEndsTheStartWithItsReport)
{
    alice.files.put("groups.txt", groups_file({"SALES"}));
    alice.files.unreadable = {"groups.txt"};

    start_alice();

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_THAT(office.segment.texts(), IsEmpty());
}

TEST_F(GroupsFile, IsReadBehindTheUsers)
{
    alice.journal.switch_on();
    open_with(groups_file({"SALES"}));

    EXPECT_THAT(alice.journal.lines(),
                HasInOrder(Lines{"read users.txt", "read groups.txt", "bind 4111"}));
}

} // namespace
