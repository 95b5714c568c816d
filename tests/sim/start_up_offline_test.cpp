#include "stories.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using platform::Answer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class StartUpOffline : public AliceAlone {};

TEST_F(StartUpOffline, AMissingNetworkIsToldOnce)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);

    start();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("No Network Connection."));
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_TRUE(alice.running());
}

TEST_F(StartUpOffline, AMissingNetworkIsLoggedAndMirrored)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);

    start();

    auto const row = logged("Network Error No route to host.");
    EXPECT_THAT(alice.log(), ElementsAre(logged("Vexlo IM.\t\r\n---"), row));
    EXPECT_EQ(alice.files.content("logs/logtemp.txt"),
              logged("Vexlo IM.\t\r\n---\r\n") + row + "\r\n");
}

TEST_F(StartUpOffline, AMirrorThatFailsInTheFailurePathEndsTheProgramWithItsReport)
{
    alice.unplug();
    alice.files.unwritable = {"logs/logtemp.txt"};

    start();

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

TEST_F(StartUpOffline, ASilentStartWithoutANetworkSaysNothingAndStaysUp)
{
    alice.unplug();

    start({.command_line = "/m"});

    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_FALSE(frmMain.window.visible());
    EXPECT_TRUE(frmMain.Timer1.enabled());
}

TEST_F(StartUpOffline, AMissingNetworkLetsTheStartGoOn)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);
    bool loaded = false;
    alice.forms().historyfrm.loadbtn.attach([&] { loaded = true; });

    start();

    EXPECT_TRUE(loaded);
    EXPECT_TRUE(frmMain.Timer1.enabled());
    EXPECT_TRUE(frmMain.window.visible());
    EXPECT_EQ(alice.forms().loading.ProgressBar1.value(), 15);
}

TEST_F(StartUpOffline, TheListsStayLiveUntilAProbeHasFailed)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);

    start();

    EXPECT_TRUE(frmMain.allusers.enabled);
    EXPECT_TRUE(frmMain.List1.enabled);
}

TEST_F(StartUpOffline, TheWatchStandsStillBehindTheBoxOfAMissingNetwork)
{
    alice.unplug();
    bool watching = true;
    int flag = 0;
    alice.boxes.will_answer(Answer::ok).after(20s).meanwhile([&] {
        watching = frmMain.Timer1.enabled();
        flag = frmMain.boxopen.value();
    });

    start();

    EXPECT_FALSE(watching);
    EXPECT_EQ(flag, 1);
    EXPECT_THAT(alice.log(), SizeIs(2));
    EXPECT_EQ(frmMain.boxopen.value(), 0);
    EXPECT_TRUE(frmMain.Timer1.enabled());
}

TEST_F(StartUpOffline, WhatArrivesBehindTheBoxOfAMissingNetworkIsHandledWhenItCloses)
{
    alice.host.send_failure = text::Failure(text::no_route_to_host, 113, "send");
    alice.boxes.will_answer(Answer::ok).after(1s).meanwhile([&] {
        office.segment.inject(message(bob_id, alice_id, "Bob> Hello"));
    });

    start();

    EXPECT_EQ(frmMain.cue.size(), 1U);
    EXPECT_TRUE(frmMain.Timer3.enabled());
    office.settle();
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(StartUpOffline, TheWatchRunsAgainBeforeTheNextStep)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);
    bool watching = false;
    alice.forms().historyfrm.loadbtn.attach([&] { watching = frmMain.Timer1.enabled(); });

    start();

    EXPECT_TRUE(watching);
}

TEST_F(StartUpOffline, ATakenPlaceBehindAMissingNetworkStopsTheWatchForItsBox)
{
    alice.unplug();
    alice.forms().historyfrm.loadbtn.attach(
        [] { throw text::Failure(text::address_in_use, 98, "history"); });
    alice.boxes.will_answer(Answer::ok);
    bool watching = true;
    alice.boxes.will_answer(Answer::ok).meanwhile([&] { watching = frmMain.Timer1.enabled(); });

    start();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("No Network Connection.", "Port 4112 is in use."));
    EXPECT_FALSE(watching);
}

} // namespace
