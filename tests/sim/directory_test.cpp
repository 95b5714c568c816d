#include "flows.h"

namespace {

using namespace flows;
using sim::lines;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// The directory on disk, at one start and the runs behind it.
class Directory : public testing::Test {
protected:
    void start(std::vector<std::string> const& users, sim::Setup setup = {})
    {
        setup.users = users;
        alice.prepare("Alice", setup);
        alice.start();
    }

    [[nodiscard]] std::vector<std::string> rows() { return alice.frmMain().userlist.rows(); }
    [[nodiscard]] std::string file() const { return alice.files.content("users.txt"); }

    sim::Office office;
    sim::Peer& alice = office.host("ROOM12", "alice");
};

TEST_F(Directory, IsSortedCaseBlindAndHeldInUpperCase)
{
    start({"[room9\\b]=b", "[ROOM12\\ALICE]=Alice", "[ROOM9\\A]=a"});

    EXPECT_THAT(rows(), ElementsAre("[ROOM12\\ALICE]=ALICE", "[ROOM9\\A]=A", "[ROOM9\\B]=B"));
}

TEST_F(Directory, AMissingFileIsAnEmptyDirectory)
{
    start({});
    EXPECT_THAT(rows(), IsEmpty());

    office.settle();

    EXPECT_EQ(file(), "[ROOM12\\ALICE]=ALICE\r\n");
}

TEST_F(Directory, TheReaderDropsOnlyTheRowOfAll)
{
    start({"[ALL]=ALL", "[ALL]=EVERYBODY", "[ROOM12\\ALICE]=ALICE"});

    EXPECT_THAT(rows(), ElementsAre("[ALL]=EVERYBODY", "[ROOM12\\ALICE]=ALICE"));
}

TEST_F(Directory, TheRowOfAllIsDroppedExactlyAsItStands)
{
    start({"[All]=All"});

    EXPECT_THAT(rows(), ElementsAre("[ALL]=ALL"));
}

TEST_F(Directory, TheWriterLeavesOutEveryRowThatBeginsLikeAll)
{
    start({"[ALL]=EVERYBODY", "[ALL]", "[ALLAN]=ALLAN", "[ROOM12\\ALICE]=ALICE"});

    alice.enter([this] { alice.frmMain().saveusers.run(); });

    EXPECT_EQ(file(), "[ALLAN]=ALLAN\r\n[ROOM12\\ALICE]=ALICE\r\n");
}

TEST_F(Directory, ACommaMakesTwoRowsOfOne)
{
    start({"[ROOM07\\BOB]=MEYER, BOB"});

    EXPECT_THAT(rows(), ElementsAre("[ROOM07\\BOB]=MEYER", "BOB"));
}

TEST_F(Directory, ANameWithACommaIsHeldWholeUntilTheNextLoad)
{
    start({"[ROOM12\\ALICE]=ALICE"});
    office.settle();
    office.segment.inject(answer(bob_id, "MEYER, BOB"));
    office.settle();
    EXPECT_THAT(rows(), ElementsAre("[ROOM07\\BOB]=MEYER, BOB", "[ROOM12\\ALICE]=ALICE"));
    EXPECT_THAT(file(), HasSubstr("[ROOM07\\BOB]=MEYER, BOB\r\n"));

    alice.restart();

    EXPECT_THAT(rows(), ElementsAre("[ROOM07\\BOB]=MEYER", "[ROOM12\\ALICE]=ALICE", "BOB"));
}

TEST_F(Directory, ALoadBuildsTheDirectoryAnewAndTheIdentityToo)
{
    start(known_users);
    alice.files.put("users.txt", lines({"[ROOM07\\BOB]=BOB"}));
    alice.environment.variables["username"] = "Al";

    alice.enter([this] { alice.frmMain().loadusers.run(); });

    EXPECT_THAT(rows(), ElementsAre("[ROOM07\\BOB]=BOB"));
    EXPECT_EQ(alice.frmMain().user, "[ROOM12\\AL]");
}

TEST_F(Directory, ALoadWithoutAFileEmptiesTheDirectory)
{
    start(known_users);
    alice.files.erase("users.txt");

    alice.enter([this] { alice.frmMain().loadusers.run(); });

    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(Directory, ASaveEndsInASaveOfTheSettings)
{
    start(known_users);
    alice.journal.switch_on();

    alice.enter([this] { alice.frmMain().saveusers.run(); });

    EXPECT_THAT(alice.journal.lines(), ElementsAre("write users.txt", "write settings.txt"));
}

TEST_F(Directory, AStartMayClearItToTheOwnRow)
{
    start(known_users, {.settings = {{"STARTCLEARUSERCACHE", "1"}}});

    EXPECT_EQ(file(), "[ROOM12\\ALICE]=ALICE\r\n");
    EXPECT_THAT(rows(), ElementsAre("[ROOM12\\ALICE]=ALICE"));
    EXPECT_EQ(alice.frmMain().cachecleared.value(), 1);
}

TEST_F(Directory, AReloadDoesNotClearItAgain)
{
    start(known_users, {.settings = {{"STARTCLEARUSERCACHE", "1"}}});
    office.settle();
    office.segment.inject(answer(bob_id, "BOB"));
    office.settle();

    alice.enter([this] { alice.frmMain().loadusers.run(); });

    EXPECT_THAT(rows(), ElementsAre("[ROOM07\\BOB]=BOB", "[ROOM12\\ALICE]=ALICE"));
}

TEST_F(Directory, WithoutTheOptionNothingIsCleared)
{
    start(known_users);

    EXPECT_THAT(rows(), SizeIs(3));
    EXPECT_EQ(alice.frmMain().cachecleared.value(), 0);
}

TEST_F(Directory, AUserWhoLeftYearsAgoStays)
{
    start({"[ROOM99\\OLD]=OLD FRIEND", "[ROOM12\\ALICE]=ALICE"});
    office.settle();
    alice.person.leave();
    alice.start();
    office.settle();

    EXPECT_THAT(file(), HasSubstr("[ROOM99\\OLD]=OLD FRIEND"));
    EXPECT_THAT(alice.frmMain().allusers.rows(), Not(testing::Contains("Old Friend")));
}

TEST_F(Directory, AnUnreadableFileEndsTheProgramWithItsReport)
{
    alice.files.unreadable = {"users.txt"};

    start(known_users);

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(alice.status(), 1);
}

} // namespace
