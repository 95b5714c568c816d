#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using platform::Answer;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Ports : public TwoPeople {
protected:
    Ports() { alice.journal.switch_on(); }

    void change_listening_port(std::string_view answer)
    {
        alice.boxes.will_enter(answer);
        alice.enter([this] { frmMain.changeports1.run(); });
    }

    void change_sending_port(std::string_view answer)
    {
        alice.boxes.will_enter(answer);
        alice.enter([this] { frmMain.changeports2.run(); });
    }

    [[nodiscard]] std::vector<int> bound() const
    {
        std::vector<int> ports;
        for (auto const& each : office.segment.bound()) {
            ports.push_back(each.port);
        }
        return ports;
    }

    [[nodiscard]] std::string settings() const { return alice.files.content("settings.txt"); }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(Ports, EveryDatagramGoesFromTheSendingPortToTheListeningPort)
{
    alice.person.send_to("Bob", "Hello");
    alice.enter([this] { frmMain.getusers.run(); });
    alice.person.leave();
    office.settle();

    EXPECT_THAT(office.segment.sent(), Each(AllOf(Field(&sim::Segment::Sent::from_port, 4112),
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

TEST_F(Ports, TheNewListeningPortIsAskedFor)
{
    change_listening_port("");

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.text, "Please enter the new Listening Port #:\r\n");
    EXPECT_EQ(box.title, "Change your Ports");
    EXPECT_EQ(box.default_text, "4111");
}

TEST_F(Ports, TheNewSendingPortIsAskedFor)
{
    change_sending_port("");

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.text, "Please enter the new Sending Port #:\r\n");
    EXPECT_EQ(box.title, "Change your Ports");
    EXPECT_EQ(box.default_text, "4112");
}

TEST_F(Ports, MessagesPopUpBehindThePortBox)
{
    alice.boxes.will_enter("").after(1s).meanwhile(
        [&] { bob.person.send_to("Alice Meyer", "Hello"); });

    alice.enter([this] { frmMain.changeports1.run(); });

    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(Ports, AnEmptyAnswerChangesNothing)
{
    change_listening_port("");
    change_sending_port("");

    EXPECT_THAT(alice.journal.lines(), Each(testing::StartsWith("box ")));
}

TEST_F(Ports, ThePresentPortChangesNothing)
{
    change_listening_port("4111");
    change_sending_port("4112");

    EXPECT_THAT(alice.journal.lines(), Each(testing::StartsWith("box ")));
}

TEST_F(Ports, ThePresentPortIsComparedAsText)
{
    change_listening_port("04111");

    EXPECT_THAT(bound(), ElementsAre(4111, 4112));
    EXPECT_THAT(alice.journal.lines(), Contains("write settings.txt"));
}

TEST_F(Ports, ThePresentSendingPortIsComparedAsTextToo)
{
    change_sending_port("4112 ");

    EXPECT_THAT(bound(), ElementsAre(4111, 4112));
}

TEST_F(Ports, TheOtherPortIsRefusedForTheListeningPort)
{
    alice.boxes.will_enter("4112x");
    alice.boxes.will_answer(Answer::ok);

    alice.enter([this] { frmMain.changeports1.run(); });

    EXPECT_EQ(alice.boxes.texts().at(1), "Ports cannot be the same.\r\n   Listening and Sending");
    EXPECT_THAT(alice.journal.lines(), Each(testing::StartsWith("box ")));
    EXPECT_EQ(frmMain.udplistenport, 4111);
}

TEST_F(Ports, TheOtherPortIsRefusedForTheSendingPort)
{
    alice.boxes.will_enter("4111");
    alice.boxes.will_answer(Answer::ok);

    alice.enter([this] { frmMain.changeports2.run(); });

    EXPECT_EQ(alice.boxes.texts().at(1), "Ports cannot be the same.\r\n   Listening and Sending");
    EXPECT_THAT(alice.journal.lines(), Each(testing::StartsWith("box ")));
    EXPECT_EQ(frmMain.udpsendport, 4112);
}

TEST_F(Ports, RowsWaitBehindTheRefusalAndAreHandledAfterIt)
{
    alice.boxes.will_enter("4112");
    alice.boxes.will_answer(Answer::ok).after(1s).meanwhile([&] {
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        bob.person.send_to("Alice Meyer", "Hello");
    });

    alice.enter([this] { frmMain.changeports1.run(); });

    EXPECT_EQ(frmMain.cue.size(), 1U);
    EXPECT_EQ(frmMain.boxopen.value(), 0);
    office.settle();
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(Ports, ANewListeningPortMovesBothSocketsAndIsSaved)
{
    change_listening_port("5000");

    EXPECT_THAT(alice.journal.lines(), HasInOrder(Lines{"close 4111", "close 4112", "bind 5000",
                                                        "bind 4112", "write settings.txt"}));
    EXPECT_EQ(frmMain.udplistenport, 5000);
    EXPECT_EQ(frmMain.udpsendremote, 5000);
    EXPECT_EQ(frmMain.udpsendport, 4112);
    EXPECT_EQ(frmMain.udplistenremote, 4112);
    EXPECT_THAT(settings(), AllOf(HasSubstr("[LISTENINGPORT       ]=5000\r\n"),
                                  HasSubstr("[SENDINGPORT         ]=4112\r\n")));
    alice.enter([this] { frmMain.getusers.run(); });
    EXPECT_EQ(office.segment.sent().back().from_port, 4112);
    EXPECT_EQ(office.segment.sent().back().to_port, 5000);
}

TEST_F(Ports, ANewSendingPortMovesBothSocketsAndIsSaved)
{
    change_sending_port("5001");

    EXPECT_THAT(alice.journal.lines(), HasInOrder(Lines{"close 4111", "close 4112", "bind 4111",
                                                        "bind 5001", "write settings.txt"}));
    EXPECT_EQ(frmMain.udpsendport, 5001);
    EXPECT_EQ(frmMain.udplistenremote, 5001);
    EXPECT_EQ(frmMain.udplistenport, 4111);
    EXPECT_EQ(frmMain.udpsendremote, 4111);
    EXPECT_THAT(settings(), HasSubstr("[SENDINGPORT         ]=5001\r\n"));
    alice.enter([this] { frmMain.getusers.run(); });
    EXPECT_EQ(office.segment.sent().back().from_port, 5001);
    EXPECT_EQ(office.segment.sent().back().to_port, 4111);
}

TEST_F(Ports, TheNextBoxOffersTheNewPort)
{
    change_sending_port("5001");
    change_sending_port("");

    EXPECT_EQ(alice.boxes.shown().back().default_text, "5001");
}

TEST_F(Ports, PeersOnOtherPortsDoNotHearEachOther)
{
    change_listening_port("5000");
    bob.person.send_to("Alice Meyer", "Hello");
    alice.person.send_to("Bob", "Hello");
    office.settle();

    EXPECT_FALSE(alice.popup(0).window.visible());
    EXPECT_FALSE(bob.popup(0).window.visible());
}

TEST_F(Ports, PeersThatAllMoveHearEachOtherAgain)
{
    change_listening_port("5000");
    bob.boxes.will_enter("5000");
    bob.enter([this] { bob.frmMain().changeports1.run(); });

    bob.person.send_to("Alice Meyer", "Hello");
    office.settle();

    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(Ports, AnAnswerThatIsNoNumberIsPortNought)
{
    change_listening_port("abc");

    EXPECT_THAT(bound(), ElementsAre(0, 4112));
    EXPECT_THAT(settings(), HasSubstr("[LISTENINGPORT       ]=0\r\n"));
    EXPECT_TRUE(alice.running());
}

TEST_F(Ports, TheLeadingNumberOfAnAnswerCounts)
{
    change_listening_port("4200x");
    EXPECT_EQ(frmMain.udplistenport, 4200);

    change_listening_port("4300.7");
    EXPECT_EQ(frmMain.udplistenport, 4301);
}

TEST_F(Ports, APortThatIsTakenEndsTheProgramWithItsReport)
{
    alice.host.taken = {5000};

    change_listening_port("5000");

    EXPECT_EQ(alice.report(), "Address in use");
    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(alice.journal.lines(), Not(Contains("write settings.txt")));
}

TEST_F(Ports, ASendingPortThatIsTakenEndsTheProgramWithItsReport)
{
    alice.host.taken = {5001};

    change_sending_port("5001");

    EXPECT_EQ(alice.report(), "Address in use");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(Ports, APortBeyondTheLastOneEndsTheProgramWithItsReport)
{
    change_listening_port("65536");

    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(alice.journal.lines(), Not(Contains("write settings.txt")));
}

TEST_F(Ports, ANumberBeyondAllPortsEndsTheProgramWithItsReport)
{
    change_listening_port("99999999999");

    EXPECT_EQ(alice.report(), "Overflow");
    EXPECT_EQ(alice.status(), 1);
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
