#include "stories.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using platform::Answer;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class PortChange : public AlicesPorts {
protected:
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
};

TEST_F(PortChange, TheNewListeningPortIsAskedFor)
{
    change_listening_port("");

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.text, "Please enter the new Listening Port #:\r\n");
    EXPECT_EQ(box.title, "Change your Ports");
    EXPECT_EQ(box.default_text, "4111");
}

TEST_F(PortChange, TheNewSendingPortIsAskedFor)
{
    change_sending_port("");

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.text, "Please enter the new Sending Port #:\r\n");
    EXPECT_EQ(box.title, "Change your Ports");
    EXPECT_EQ(box.default_text, "4112");
}

TEST_F(PortChange, MessagesPopUpBehindThePortBox)
{
    alice.boxes.will_enter("").after(1s).meanwhile(
        [&] { bob.person.send_to("Alice Meyer", "Hello"); });

    alice.enter([this] { frmMain.changeports1.run(); });

    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(PortChange, AnEmptyAnswerChangesNothing)
{
    change_listening_port("");
    change_sending_port("");

    EXPECT_THAT(alice.journal.lines(), Each(testing::StartsWith("box ")));
}

TEST_F(PortChange, ThePresentPortChangesNothing)
{
    change_listening_port("4111");
    change_sending_port("4112");

    EXPECT_THAT(alice.journal.lines(), Each(testing::StartsWith("box ")));
}

TEST_F(PortChange, ThePresentPortIsComparedAsText)
{
    change_listening_port("04111");

    EXPECT_THAT(bound(), ElementsAre(4111, 4112));
    EXPECT_THAT(alice.journal.lines(), Contains("write settings.txt"));
}

TEST_F(PortChange, ThePresentSendingPortIsComparedAsTextToo)
{
    change_sending_port("4112 ");

    EXPECT_THAT(bound(), ElementsAre(4111, 4112));
}

TEST_F(PortChange, TheOtherPortIsRefusedForTheListeningPort)
{
    alice.boxes.will_enter("4112x");
    alice.boxes.will_answer(Answer::ok);

    alice.enter([this] { frmMain.changeports1.run(); });

    EXPECT_EQ(alice.boxes.texts().at(1), "Ports cannot be the same.\r\n   Listening and Sending");
    EXPECT_THAT(alice.journal.lines(), Each(testing::StartsWith("box ")));
    EXPECT_EQ(frmMain.udplistenport, 4111);
}

TEST_F(PortChange, TheOtherPortIsRefusedForTheSendingPort)
{
    alice.boxes.will_enter("4111");
    alice.boxes.will_answer(Answer::ok);

    alice.enter([this] { frmMain.changeports2.run(); });

    EXPECT_EQ(alice.boxes.texts().at(1), "Ports cannot be the same.\r\n   Listening and Sending");
    EXPECT_THAT(alice.journal.lines(), Each(testing::StartsWith("box ")));
    EXPECT_EQ(frmMain.udpsendport, 4112);
}

TEST_F(PortChange, RowsWaitBehindTheRefusalAndAreHandledAfterIt)
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

TEST_F(PortChange, ANewListeningPortMovesBothSocketsAndIsSaved)
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

TEST_F(PortChange, ANewSendingPortMovesBothSocketsAndIsSaved)
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

TEST_F(PortChange, TheNextBoxOffersTheNewPort)
{
    change_sending_port("5001");
    change_sending_port("");

    EXPECT_EQ(alice.boxes.shown().back().default_text, "5001");
}

TEST_F(PortChange, PeersOnOtherPortsDoNotHearEachOther)
{
    change_listening_port("5000");
    bob.person.send_to("Alice Meyer", "Hello");
    alice.person.send_to("Bob", "Hello");
    office.settle();

    EXPECT_FALSE(alice.popup(0).window.visible());
    EXPECT_FALSE(bob.popup(0).window.visible());
}

TEST_F(PortChange, PeersThatAllMoveHearEachOtherAgain)
{
    change_listening_port("5000");
    bob.boxes.will_enter("5000");
    bob.enter([this] { bob.frmMain().changeports1.run(); });

    bob.person.send_to("Alice Meyer", "Hello");
    office.settle();

    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(PortChange, AnAnswerThatIsNoNumberIsPortNought)
{
    change_listening_port("abc");

    EXPECT_THAT(bound(), ElementsAre(0, 4112));
    EXPECT_THAT(settings(), HasSubstr("[LISTENINGPORT       ]=0\r\n"));
    EXPECT_TRUE(alice.running());
}

TEST_F(PortChange, TheLeadingNumberOfAnAnswerCounts)
{
    change_listening_port("4200x");
    EXPECT_EQ(frmMain.udplistenport, 4200);

    change_listening_port("4300.7");
    EXPECT_EQ(frmMain.udplistenport, 4301);
}

TEST_F(PortChange, APortThatIsTakenEndsTheProgramWithItsReport)
{
    alice.host.taken = {5000};

    change_listening_port("5000");

    EXPECT_EQ(alice.report(), "Address in use");
    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(alice.journal.lines(), Not(Contains("write settings.txt")));
}

TEST_F(PortChange, ASendingPortThatIsTakenEndsTheProgramWithItsReport)
{
    alice.host.taken = {5001};

    change_sending_port("5001");

    EXPECT_EQ(alice.report(), "Address in use");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(PortChange, APortBeyondTheLastOneEndsTheProgramWithItsReport)
{
    change_listening_port("65536");

    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(alice.journal.lines(), Not(Contains("write settings.txt")));
}

TEST_F(PortChange, ANumberBeyondAllPortsEndsTheProgramWithItsReport)
{
    change_listening_port("99999999999");

    EXPECT_EQ(alice.report(), "Overflow");
    EXPECT_EQ(alice.status(), 1);
}

} // namespace
