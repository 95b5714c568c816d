#include "stories.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

class Ports : public AlicesPorts {};

TEST_F(Ports, EveryDatagramGoesFromTheSendingPortToTheListeningPortOfEverybody)
{
    alice.person.send_to("Bob", "Hello");
    alice.enter([this] { frmMain.getusers.run(); });
    alice.person.leave();
    office.settle();

    EXPECT_THAT(office.segment.sent(), Each(AllOf(Field(&sim::Segment::Sent::from_port, 4112),
                                                  Field(&sim::Segment::Sent::to, "255.255.255.255"),
                                                  Field(&sim::Segment::Sent::to_port, 4111))));
}

TEST_F(Ports, WhatReachesTheSendingPortIsNeverRead)
{
    office.segment.inject(message(carl_id, alice_id, "Carl> Hello"), 4112);
    office.run_for(1s);

    EXPECT_THAT(frmMain.cue, IsEmpty());
    EXPECT_FALSE(alice.popup(0).window.visible());
}

TEST_F(Ports, TheOwnDatagramsComeBack)
{
    alice.enter([this] { frmMain.getusers.run(); });
    office.run_for(1ms);

    EXPECT_THAT(frmMain.cue, ElementsAre(announcement(alice_id, "ALICE MEYER")));
}

TEST_F(Ports, ADatagramIsOneTextAsItStands)
{
    std::string const bytes("\0\xFF\r\n\x80 ]", 7);
    office.segment.inject(bytes);
    office.run_for(1ms);

    EXPECT_THAT(frmMain.cue, ElementsAre(bytes));
}

TEST_F(Ports, AResetSetsBothSocketsUpAndAnnounces)
{
    alice.enter([this] { frmMain.Command6.run(); });

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("close 4111", "close 4112", "bind 4111", "bind 4112",
                            "send " + announcement(alice_id, "ALICE MEYER")));
    EXPECT_EQ(frmMain.statustext.caption(), "Reset Port");
    EXPECT_THAT(alice.status_repaints, ElementsAre("Reset Port"));
}

TEST_F(Ports, AResetLosesWhatLayUnreadInTheSocket)
{
    alice.enter([this] {
        frmMain.getusers.run();
        frmMain.Command6.run();
    });
    office.run_for(1ms);

    // Only the announcement of the reset itself has come back.
    EXPECT_EQ(frmMain.cue.size(), 1U);
}

TEST_F(Ports, AResetThatCannotBindEndsTheProgramWithItsReport)
{
    alice.host.taken = {4112};

    alice.enter([this] { frmMain.Command6.run(); });

    EXPECT_EQ(alice.report(), "Address in use");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(Ports, AnErrorOfTheListeningSocketStandsInTheStatusLine)
{
    alice.listening.fail(10054, "Connection reset by peer");

    EXPECT_EQ(frmMain.statustext.caption(), "SCKUDP ERROR10054Connection reset by peer");
    EXPECT_THAT(alice.journal.lines(), IsEmpty());
    office.run_for(watch);
    EXPECT_EQ(frmMain.statustext.caption(), "Vexlo - Alice Meyer Listening");
}

TEST_F(Ports, AnErrorOfTheListeningSocketLeavesTheQueueAlone)
{
    office.segment.inject("one");
    office.run_for(1ms);

    alice.listening.fail(10054, "Connection reset by peer");

    EXPECT_THAT(frmMain.cue, ElementsAre("one"));
    EXPECT_EQ(frmMain.cuetotal.caption(), "0");
}

TEST_F(Ports, PortsOfTheSettingsAreThoseOfTheSockets)
{
    auto& carl = office.peer("ROOM33", "carl", "Carl",
                             {.settings = {{"LISTENINGPORT", "6000"}, {"SENDINGPORT", "6001x"}}});

    EXPECT_EQ(carl.frmMain().udplistenremote, 6001);
    EXPECT_EQ(office.segment.sent().back().from_port, 6001);
    EXPECT_EQ(office.segment.sent().back().to_port, 6000);
}

TEST_F(Ports, APortOfTheSettingsThatIsNoNumberIsPortNought)
{
    auto& carl = office.peer("ROOM33", "carl", "Carl", {.settings = {{"LISTENINGPORT", "abc"}}});

    EXPECT_TRUE(carl.running());
    EXPECT_EQ(carl.frmMain().udplistenport, 0);
}

} // namespace
