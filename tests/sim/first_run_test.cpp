#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using sim::Office;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class FirstRun : public testing::Test {
protected:
    void start_as(std::string_view name)
    {
        alice.boxes.will_enter(name);
        alice.start();
    }

    [[nodiscard]] std::string settings() const { return alice.files.content("settings.txt"); }

    Office office;
    sim::Peer& alice = office.host("ROOM12", "alice");
};

TEST_F(FirstRun, AsksForTheNameAndOffersTheLogin)
{
    start_as("Alice Meyer");

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.text, "Please enter your name:\r\n");
    EXPECT_EQ(box.title, "Vexlo Instant Messaging Setup");
    EXPECT_EQ(box.default_text, "alice");
    EXPECT_EQ(alice.boxes.shown().size(), 1U);
}

TEST_F(FirstRun, HoldsTheNameInUpperCase)
{
    start_as("Alice Meyer");

    EXPECT_EQ(alice.frmMain().friendlyname, "ALICE MEYER");
    EXPECT_EQ(alice.frmMain().myname, "ROOM12\\ALICE");
    EXPECT_EQ(alice.frmMain().user, alice_id);
    EXPECT_THAT(settings(), HasSubstr("[MY NAME             ]=ALICE MEYER\r\n"));
}

TEST_F(FirstRun, AFolderWithSettingsIsNotAFirstRun)
{
    alice.prepare("Alice");
    alice.start();

    EXPECT_THAT(alice.boxes.shown(), testing::IsEmpty());
}

TEST_F(FirstRun, TheFlagIsUpWhileTheNameBoxIsOpen)
{
    int flag = 0;
    alice.boxes.will_enter("Alice").meanwhile([&] { flag = alice.frmMain().boxopen.value(); });

    alice.start();

    EXPECT_EQ(flag, 1);
    EXPECT_EQ(alice.frmMain().boxopen.value(), 0);
}

TEST_F(FirstRun, TheDefaultFileHoldsThePlaceOfTheCentredWindow)
{
    start_as("Alice");

    EXPECT_THAT(settings(), AllOf(HasSubstr("[WINPOSX             ]=10297.5\r\n"),
                                  HasSubstr("[WINPOSY             ]=5415\r\n")));
    EXPECT_FLOAT_EQ(alice.frmMain().window.left, 10297.5F);
}

TEST_F(FirstRun, AWindowThatWasMovedBehindTheNameBoxIsCentredAgain)
{
    alice.boxes.will_enter("Alice").meanwhile([&] { alice.frmMain().window.place(1, 2); });

    alice.start();

    EXPECT_THAT(settings(), HasSubstr("[WINPOSX             ]=10297.5\r\n"));
}

TEST_F(FirstRun, TheDefaultFileIsReadBackAtOnce)
{
    alice.journal.switch_on();
    start_as("Alice");

    EXPECT_THAT(alice.journal.lines(),
                HasInOrder(Lines{"box Please enter your name:\r\n", "write settings.txt",
                                 "read settings.txt", "bind 4111"}));
    EXPECT_EQ(alice.frmMain().wavefile, "/home/alice/vexlo/vexlo.wav");
}

TEST_F(FirstRun, AnEmptyNameIsANameToo)
{
    start_as("");
    EXPECT_THAT(settings(), HasSubstr("[MY NAME             ]=\r\n"));

    office.settle();

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(office.segment.texts().at(0), "***[ROOM12\\ALICE]=");
    EXPECT_THAT(settings(), HasSubstr("[MY NAME             ]=\r\n"));
    EXPECT_THAT(alice.frmMain().userlist.rows(), ElementsAre("[ROOM12\\ALICE]="));
}

TEST_F(FirstRun, ANameWithACommaStandsWholeInTheFileAndIsCutBeforeItIsTold)
{
    start_as("Meyer, Alice");

    EXPECT_THAT(settings(), HasSubstr("[MY NAME             ]=MEYER, ALICE\r\n"));
    EXPECT_EQ(alice.frmMain().friendlyname, "MEYER");
    EXPECT_THAT(office.segment.texts(),
                ElementsAre(announcement(alice_id, "MEYER"), announcement(alice_id, "MEYER")));
}

TEST_F(FirstRun, TheDefaultFileLivesForOneTickBecauseTheOwnRowSavesEverything)
{
    start_as("Alice");
    EXPECT_THAT(settings(),
                AllOf(HasSubstr("[USEWATCHDOG         ]=1\r\n"),
                      HasSubstr("[WAVESOUND           ]="), Not(HasSubstr("Settings file"))));

    office.run_for(tick + 1ms);

    EXPECT_THAT(settings(), AllOf(HasSubstr("Settings file\r\n"), HasSubstr("[WAVEFILE  "),
                                  Not(HasSubstr("USEWATCHDOG")), Not(HasSubstr("WAVESOUND"))));
    EXPECT_EQ(alice.files.content("users.txt"), "[ROOM12\\ALICE]=ALICE\r\n");
}

TEST_F(FirstRun, ALonePeerSaysTwoAnnouncementsAndThreeAnswers)
{
    start_as("Alice");

    office.run_for(1min);

    auto const hello = announcement(alice_id, "ALICE");
    auto const here = answer(alice_id, "ALICE");
    EXPECT_THAT(office.segment.texts(), ElementsAre(hello, hello, here, here, here));
}

} // namespace
