#include "stories.h"

namespace {

using namespace flows;
using platform::Answer;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class StartUpFailures : public AliceAlone {
protected:
    static void refuse() { throw text::Failure("The disk is asleep", 71, "disk"); }
};

TEST_F(StartUpFailures, ATakenListeningPortIsToldAndEndsTheProgram)
{
    alice.host.taken = {4111};
    alice.boxes.will_answer(Answer::ok);

    start();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4111 is in use."));
    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.report(), "");
    EXPECT_THAT(office.segment.texts(), IsEmpty());
}

TEST_F(StartUpFailures, ATakenSendingPortIsToldByItsOwnNumber)
{
    alice.host.taken = {4112};
    alice.boxes.will_answer(Answer::ok);

    start();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4112 is in use."));
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(StartUpFailures, ATakenPortEndsASilentStartWithoutAWord)
{
    alice.host.taken = {4111};

    start({.command_line = "/m"});

    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(StartUpFailures, OnePortForBothSocketsIsATakenPort)
{
    alice.boxes.will_answer(Answer::ok);

    start({.settings = {{"SENDINGPORT", "4111"}}});

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4111 is in use."));
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(StartUpFailures, ATakenPortSavesNoSettings)
{
    alice.host.taken = {4111};
    alice.boxes.will_answer(Answer::ok);
    alice.journal.switch_on();

    start();

    EXPECT_THAT(alice.journal.lines(), Not(Contains("write settings.txt")));
}

TEST_F(StartUpFailures, TheTrayIconGoesBeforeTheEnd)
{
    alice.host.taken = {4111};
    alice.boxes.will_answer(Answer::ok);
    alice.journal.switch_on();
    alice.forms().menuform.unloadmecommand.attach([this] { alice.journal.note("unload"); });

    start();

    EXPECT_THAT(alice.journal.lines(),
                HasInOrder(Lines{"box Port 4111 is in use.", "unload", "end 0"}));
}

TEST_F(StartUpFailures, TheWatchStandsStillBehindTheBoxOfATakenPort)
{
    alice.host.taken = {4111};
    bool watching = true;
    int flag = 0;
    alice.boxes.will_answer(Answer::ok).meanwhile([&] {
        watching = frmMain.Timer1.enabled();
        flag = frmMain.boxopen.value();
    });

    start();

    EXPECT_FALSE(watching);
    EXPECT_EQ(flag, 1);
    EXPECT_TRUE(frmMain.Timer1.enabled());
    EXPECT_EQ(frmMain.boxopen.value(), 0);
}

TEST_F(StartUpFailures, ATakenPortShowsTheMainWindowInsteadOfTheSplash)
{
    alice.host.taken = {4111};
    bool main_shown = false;
    bool splash_shown = true;
    alice.boxes.will_answer(Answer::ok).meanwhile([&] {
        main_shown = frmMain.window.visible();
        splash_shown = alice.forms().loading.window.visible();
    });

    start();

    EXPECT_TRUE(main_shown);
    EXPECT_FALSE(splash_shown);
}

TEST_F(StartUpFailures, AnotherTakenPlaceEndsTheProgramTooOnceASocketHasBeenBound)
{
    // The handler reads which socket was bound last, not what has failed.
    alice.forms().historyfrm.loadbtn.attach(
        [] { throw text::Failure(text::address_in_use, 98, "history"); });
    alice.boxes.will_answer(Answer::ok);

    start();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4112 is in use."));
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(StartUpFailures, APortThatIsNoneIsPassedOver)
{
    start({.settings = {{"LISTENINGPORT", "70000"}}});

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_EQ(frmMain.statustext.caption(), "");
    office.run_for(watch);
    EXPECT_EQ(frmMain.statustext.caption(), "Vexlo - Alice Meyer Closed");
}

TEST_F(StartUpFailures, TheSendingSocketIsSetUpBehindAListeningOneThatFailed)
{
    start({.settings = {{"LISTENINGPORT", "70000"}}});

    ASSERT_THAT(office.segment.bound(), SizeIs(1));
    EXPECT_EQ(office.segment.bound().at(0).port, 4112);
}

TEST_F(StartUpFailures, AnyOtherFailureBehindTheSocketsIsPassedOver)
{
    alice.forms().historyfrm.loadbtn.attach(refuse);

    start();

    EXPECT_TRUE(alice.running());
    EXPECT_TRUE(frmMain.Timer1.enabled());
    EXPECT_EQ(frmMain.statustext.caption(), "");
    EXPECT_FALSE(alice.forms().loading.window.visible());
    EXPECT_TRUE(frmMain.window.visible());
}

TEST_F(StartUpFailures, ALogThatCannotBeWrittenDoesNotStopTheRound)
{
    alice.files.unwritable = {"logs/logtemp.txt"};

    start();

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(office.segment.texts(), SizeIs(2));
}

TEST_F(StartUpFailures, AFailedFirstRoundLeavesOutTheSecond)
{
    int rounds = 0;
    frmMain.getusers.attach([&] {
        ++rounds;
        refuse();
    });

    start();

    EXPECT_EQ(rounds, 1);
}

TEST_F(StartUpFailures, AFailureBeforeTheSocketsEndsTheProgramWithItsReport)
{
    alice.files.unreadable = {"settings.txt"};

    start();

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(office.segment.bound(), IsEmpty());
}

TEST_F(StartUpFailures, AnEmptyFlagInTheSettingsEndsTheProgramWithItsReport)
{
    start({.settings = {{"ENTERSEND", ""}}});

    EXPECT_EQ(alice.report(), "Type mismatch");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(StartUpFailures, AFlagThatIsNoNumberEndsTheProgramWithItsReport)
{
    start({.settings = {{"SHOWOWN", "yes"}}});

    EXPECT_EQ(alice.report(), "Type mismatch");
    EXPECT_EQ(alice.status(), 1);
}

} // namespace
