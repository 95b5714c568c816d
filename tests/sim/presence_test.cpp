#include "stories.h"

namespace {

using namespace flows;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class Presence : public AliceListening {};

TEST_F(Presence, ARoundRebuildsTheIdentityAndStartsTheCount)
{
    alice.environment.variables["computername"] = "Room99";
    frmMain.usercount = "12";

    alice.enter([this] { frmMain.getusers.run(); });

    EXPECT_EQ(frmMain.user, "[ROOM99\\ALICE]");
    EXPECT_THAT(office.segment.texts(), ElementsAre("***[ROOM99\\ALICE]=ALICE MEYER"));
    EXPECT_EQ(frmMain.usercount, "0");
}

TEST_F(Presence, ARoundThatCannotBeSentLeavesTheCount)
{
    alice.unplug();
    frmMain.usercount = "12";

    alice.enter([this] { frmMain.getusers.run(); });

    EXPECT_EQ(frmMain.usercount, "12");
    EXPECT_EQ(alice.report(), text::no_route_to_host);
}

TEST_F(Presence, ARenamedComputerIsASecondPersonToItsPeers)
{
    bob.environment.variables["computername"] = "ROOM99";
    bob.enter([this] { bob.frmMain().getusers.run(); });
    office.settle();

    EXPECT_THAT(directory(), Contains("[ROOM07\\BOB]=BOB"));
    EXPECT_THAT(directory(), Contains("[ROOM99\\BOB]=BOB"));
}

TEST_F(Presence, ARoundEmptiesNothing)
{
    alice.enter([this] { frmMain.getusers.run(); });

    EXPECT_THAT(on_show(), ElementsAre("Alice Meyer", "Bob"));
}

TEST_F(Presence, ANewcomerIsAnsweredTwice)
{
    office.segment.inject_to("ROOM12", announcement("[ROOM55\\DORA]", "DORA"));
    office.run_for(2 * tick);

    auto const here = answer(alice_id, "ALICE MEYER");
    EXPECT_THAT(office.segment.texts_from("ROOM12"), ElementsAre(here, here));
}

TEST_F(Presence, AKnownPeerIsAnsweredOnce)
{
    office.segment.inject_to("ROOM12", announcement(carl_id, "CARL DUNN"));
    office.run_for(2 * tick);

    EXPECT_THAT(office.segment.texts_from("ROOM12"), ElementsAre(answer(alice_id, "ALICE MEYER")));
}

TEST_F(Presence, AKnownPeerWithANewNameIsAnsweredOnce)
{
    office.segment.inject_to("ROOM12", announcement(carl_id, "KARL"));
    office.run_for(2 * tick);

    EXPECT_THAT(office.segment.texts_from("ROOM12"), ElementsAre(answer(alice_id, "ALICE MEYER")));
}

TEST_F(Presence, TheOwnAnnouncementIsAnsweredToo)
{
    alice.enter([this] { frmMain.getusers.run(); });
    office.run_for(2 * tick);

    EXPECT_THAT(
        office.segment.texts_from("ROOM12"),
        ElementsAre(announcement(alice_id, "ALICE MEYER"), answer(alice_id, "ALICE MEYER")));
}

TEST_F(Presence, AnAnswerCarriesTheIdentityOfTheLastRound)
{
    alice.environment.variables["computername"] = "Room99";

    office.segment.inject_to("ROOM12", announcement(carl_id, "CARL DUNN"));
    office.run_for(2 * tick);

    EXPECT_THAT(office.segment.texts_from("ROOM12"), ElementsAre(answer(alice_id, "ALICE MEYER")));
}

TEST_F(Presence, AnAnswerIsNotAnswered)
{
    office.segment.inject_to("ROOM12", answer("[ROOM55\\DORA]", "DORA"));
    office.run_for(2 * tick);

    EXPECT_THAT(office.segment.texts_from("ROOM12"), IsEmpty());
    EXPECT_THAT(directory(), Contains("[ROOM55\\DORA]=DORA"));
}

TEST_F(Presence, AKnownUserComesOnShowInProperCase)
{
    hear(answer(carl_id, "CARL DUNN"));

    EXPECT_THAT(on_show(), ElementsAre("Alice Meyer", "Bob", "Carl Dunn"));
}

TEST_F(Presence, AUserOnShowIsNotAddedAgain)
{
    hear(answer(bob_id, "BOB"));

    EXPECT_THAT(on_show(), ElementsAre("Alice Meyer", "Bob"));
}

TEST_F(Presence, TheListOnShowIsSearchedInAnyCase)
{
    frmMain.allusers.clear();
    frmMain.allusers.add("bOB");

    hear(answer(bob_id, "BOB"));

    EXPECT_THAT(on_show(), ElementsAre("bOB"));
}

TEST_F(Presence, AKnownUserWritesNoFile)
{
    alice.journal.switch_on();

    hear(answer(carl_id, "CARL DUNN"));

    EXPECT_THAT(alice.journal.lines(), IsEmpty());
}

TEST_F(Presence, ANewUserEmptiesTheListWholeAndIsNotOnIt)
{
    hear(answer("[ROOM55\\DORA]", "DORA"));

    EXPECT_THAT(on_show(), IsEmpty());
    EXPECT_THAT(directory(), Contains("[ROOM55\\DORA]=DORA"));
}

TEST_F(Presence, ANewUserIsSavedWithAllSettings)
{
    alice.journal.switch_on();

    hear(answer("[ROOM55\\DORA]", "DORA"));

    EXPECT_THAT(alice.journal.lines(), ElementsAre("write users.txt", "write settings.txt"));
    EXPECT_EQ(alice.files.content("users.txt"),
              "[ROOM07\\BOB]=BOB\r\n[ROOM12\\ALICE]=ALICE MEYER\r\n"
              "[ROOM33\\CARL]=CARL DUNN\r\n[ROOM55\\DORA]=DORA\r\n");
}

TEST_F(Presence, TheSelectionIsLostWithTheList)
{
    alice.person.pick("Bob");

    hear(answer("[ROOM55\\DORA]", "DORA"));
    hear(answer(bob_id, "BOB"));

    EXPECT_THAT(frmMain.allusers.selected_rows(), IsEmpty());
    EXPECT_EQ(frmMain.allusers.text(), "");
}

TEST_F(Presence, ARenameReplacesTheRow)
{
    hear(answer(bob_id, "ROBERT"));

    EXPECT_THAT(directory(), ElementsAre("[ROOM07\\BOB]=ROBERT", "[ROOM12\\ALICE]=ALICE MEYER",
                                         "[ROOM33\\CARL]=CARL DUNN"));
    EXPECT_THAT(on_show(), IsEmpty());
    EXPECT_THAT(alice.files.content("users.txt"), testing::HasSubstr("[ROOM07\\BOB]=ROBERT\r\n"));
}

TEST_F(Presence, AChangeOfNameReachesTheOthers)
{
    bob.boxes.will_enter("Robert");

    bob.enter([this] { bob.frmMain().Command1.run(); });
    office.settle();

    EXPECT_THAT(directory(), Contains("[ROOM07\\BOB]=ROBERT"));
    EXPECT_THAT(directory(), Not(Contains("[ROOM07\\BOB]=BOB")));
}

TEST_F(Presence, NameAndIdentityAreReadInUpperCase)
{
    hear("**-[room55\\dora]=Dora Klein");

    EXPECT_THAT(directory(), Contains("[ROOM55\\DORA]=DORA KLEIN"));
}

TEST_F(Presence, AnEqualSignBelongsToTheName)
{
    hear(answer("[ROOM55\\DORA]", "D=ORA"));
    hear(answer("[ROOM55\\DORA]", "D=ORA"));

    EXPECT_THAT(directory(), Contains("[ROOM55\\DORA]=D=ORA"));
    EXPECT_THAT(on_show(), ElementsAre("D=ora"));
}

TEST_F(Presence, ABracketInTheNameDisturbsNothing)
{
    hear(answer("[ROOM55\\DORA]", "DO]RA]"));
    hear(answer("[ROOM55\\DORA]", "DO]RA]"));

    EXPECT_THAT(on_show(), ElementsAre("Do]ra]"));
}

TEST_F(Presence, AnEmptyNameIsAUserToo)
{
    hear(answer("[ROOM55\\DORA]", ""));
    hear(answer("[ROOM55\\DORA]", ""));

    EXPECT_THAT(directory(), Contains("[ROOM55\\DORA]="));
    EXPECT_THAT(on_show(), ElementsAre(""));
}

TEST_F(Presence, TheDashDatagramHasNoEffect)
{
    hear("---[ROOM55\\DORA]=DORA");

    EXPECT_THAT(directory(), SizeIs(3));
    EXPECT_THAT(on_show(), SizeIs(2));
}

TEST_F(Presence, TheDashDatagramCarriesNameAndIdentity)
{
    alice.enter([this] { frmMain.Command5.run(); });

    EXPECT_THAT(office.segment.texts(), ElementsAre("---[ROOM12\\ALICE]=ALICE MEYER"));
}

TEST_F(Presence, AnAnswerThatCannotBeSentIsForgotten)
{
    alice.host.send_failure = text::Failure(text::no_route_to_host, 113, "send");

    hear(announcement("[ROOM55\\DORA]", "DORA"));

    EXPECT_THAT(directory(), Contains("[ROOM55\\DORA]=DORA"));
    EXPECT_NE(frmMain.statustext.caption(), "Network Error");
    EXPECT_THAT(frmMain.cue, IsEmpty());
}

TEST_F(Presence, AnUnwritableDirectoryDoesNotHoldUpTheQueue)
{
    alice.files.unwritable = {"users.txt"};

    hear(announcement("[ROOM55\\DORA]", "DORA"));

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(directory(), Contains("[ROOM55\\DORA]=DORA"));
    EXPECT_THAT(frmMain.cue, IsEmpty());
}

} // namespace
