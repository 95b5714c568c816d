#include "flows.h"

namespace {

using namespace flows;
using sim::Office;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(FirstContact, TheSecondAnswerPutsANewcomerOnTheList)
{
    Office office;
    office.peer("ROOM12", "alice", "Alice Meyer");
    auto& bob = office.newcomer("ROOM07", "bob", "Bob");

    office.settle();

    EXPECT_THAT(bob.frmMain().allusers.rows(), ElementsAre("Alice Meyer", "Bob"));
}

TEST(FirstContact, WorksWhoeverComesFirst)
{
    Office office;
    auto& alice = office.newcomer("ROOM12", "alice", "Alice");
    office.settle();
    auto& bob = office.newcomer("ROOM07", "bob", "Bob");
    office.settle();

    EXPECT_THAT(alice.frmMain().allusers.rows(), ElementsAre("Alice", "Bob"));
    EXPECT_THAT(bob.frmMain().allusers.rows(), ElementsAre("Alice", "Bob"));
}

TEST(FirstContact, BothWriteEachOtherDown)
{
    Office office;
    auto& alice = office.newcomer("ROOM12", "alice", "Alice");
    auto& bob = office.newcomer("ROOM07", "bob", "Bob");
    office.settle();

    std::string const both = "[ROOM07\\BOB]=BOB\r\n[ROOM12\\ALICE]=ALICE\r\n";
    EXPECT_EQ(alice.files.content("users.txt"), both);
    EXPECT_EQ(bob.files.content("users.txt"), both);
}

TEST(FirstContact, TheListOfUsersOnDiskFillsNoListOnShow)
{
    Office office;
    auto& alice = office.peer("ROOM12", "alice", "Alice Meyer", {.users = known_users});

    EXPECT_THAT(alice.frmMain().userlist.rows(), SizeIs(3));
    EXPECT_THAT(alice.frmMain().allusers.rows(), IsEmpty());
}

TEST(FirstContact, ALonePeerFindsItself)
{
    Office office;
    auto& alice = office.newcomer("ROOM12", "alice", "Alice");

    office.settle();

    EXPECT_THAT(alice.frmMain().allusers.rows(), ElementsAre("Alice"));
}

TEST(FirstContact, ALonePeerThatHidesItsOwnNameSeesNobody)
{
    Office office;
    auto& alice = office.peer("ROOM12", "alice", "Alice", {.settings = {{"SHOWMEINLIST", "0"}}});

    office.settle();

    EXPECT_THAT(alice.frmMain().allusers.rows(), IsEmpty());
    EXPECT_THAT(alice.frmMain().userlist.rows(), ElementsAre("[ROOM12\\ALICE]=ALICE"));
}

} // namespace
