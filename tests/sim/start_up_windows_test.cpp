#include "stories.h"

#include <map>

namespace {

using namespace flows;
using controls::Window;
using testing::ElementsAre;

class StartUpWindows : public AliceAlone {
protected:
    /// Keeps each value that the splash bar shows.
    void watch_progress()
    {
        auto& bar = alice.forms().loading.ProgressBar1;
        bar.changed.attach([this, &bar] { progress.push_back(bar.value()); });
    }

    std::vector<int> progress;
};

TEST_F(StartUpWindows, TheSplashBarGoesThroughItsValuesAndIsLeftAtFifteen)
{
    alice.forms().loading.ProgressBar1.set(33);
    watch_progress();

    start();

    EXPECT_THAT(progress, ElementsAre(0, 10, 20, 50, 55, 60, 70, 80, 90, 95, 100, 0, 15));
    EXPECT_FALSE(alice.forms().loading.window.visible());
}

TEST_F(StartUpWindows, AFirstRunHasTwoMoreSteps)
{
    watch_progress();
    alice.boxes.will_enter("Alice");

    alice.start();

    EXPECT_THAT(progress, ElementsAre(10, 20, 30, 40, 50, 55, 60, 70, 80, 90, 95, 100, 0, 15));
}

TEST_F(StartUpWindows, TheSplashIsHiddenAndShownAgainBeforeTheFirstRound)
{
    auto& window = alice.forms().loading.window;
    Lines seen;
    window.shown.attach([&] { seen.push_back("shown"); });
    window.hidden.attach([&] { seen.push_back("hidden"); });
    alice.frmMain().getusers.attach([&] { seen.push_back("round"); });

    start();

    EXPECT_THAT(seen, ElementsAre("shown", "hidden", "shown", "round", "round", "hidden"));
    EXPECT_EQ(alice.splash_repaints, 1);
}

TEST_F(StartUpWindows, ASilentStartShowsTheSplashForAMomentToo)
{
    auto& window = alice.forms().loading.window;
    Lines seen;
    window.shown.attach([&] { seen.push_back("shown"); });
    window.hidden.attach([&] { seen.push_back("hidden"); });

    start({.command_line = "/m"});

    EXPECT_THAT(seen, ElementsAre("shown", "hidden"));
    EXPECT_EQ(alice.forms().loading.ProgressBar1.value(), 15);
}

TEST_F(StartUpWindows, ANormalStartShowsTheMainWindow)
{
    start();

    EXPECT_TRUE(frmMain.window.visible());
    EXPECT_EQ(frmMain.window.state, Window::State::normal);
    EXPECT_NE(frmMain.minimized, "yes");
    EXPECT_FLOAT_EQ(frmMain.window.width, 8205);
    EXPECT_FLOAT_EQ(frmMain.window.height, 5370);
    EXPECT_EQ(frmMain.messlen, 970);
    EXPECT_EQ(frmMain.title.caption(), "Vexlo Instant Messaging ");
}

TEST_F(StartUpWindows, ASilentStartEndsHidden)
{
    start({.command_line = "/m"});

    EXPECT_FALSE(frmMain.window.visible());
    EXPECT_EQ(frmMain.window.state, Window::State::minimised);
    EXPECT_EQ(frmMain.minimized, "yes");
}

TEST_F(StartUpWindows, TheSilentSwitchIsReadInAnyCase)
{
    start({.command_line = "/M"});

    EXPECT_FALSE(alice.frmMain().window.visible());
}

TEST_F(StartUpWindows, TheSilentSwitchIsTheWholeCommandLine)
{
    for (std::string const line : {"/m /x", "/m ", " /m", "m", "-m", "/mm"}) {
        sim::Office another;
        auto& peer = another.peer("ROOM12", "alice", "Alice", {.command_line = line});
        EXPECT_TRUE(peer.frmMain().window.visible()) << line;
    }
}

TEST_F(StartUpWindows, BothTabStripsStartOnTheirFirstPage)
{
    alice.frmMain().SSTab1.choose(1);
    alice.settings().SSTab1.choose(3);

    start();

    EXPECT_EQ(alice.frmMain().SSTab1.tab(), 0);
    EXPECT_EQ(alice.settings().SSTab1.tab(), 0);
}

TEST_F(StartUpWindows, TheWarningIsHiddenAtFirst)
{
    alice.frmMain().Label5.visible = true;
    alice.frmMain().Frame2.visible = true;

    start();

    EXPECT_FALSE(alice.frmMain().Label5.visible);
    EXPECT_FALSE(alice.frmMain().Frame2.visible);
}

TEST_F(StartUpWindows, TheTrayWindowIsCentredAndNeverShown)
{
    start();

    auto const& tray = alice.forms().menuform.window;
    EXPECT_FALSE(tray.visible());
    EXPECT_FLOAT_EQ(tray.left, (28800 - tray.width) / 2);
    EXPECT_FLOAT_EQ(tray.top, (16200 - tray.height) / 2);
}

TEST_F(StartUpWindows, MinimisedAtTheStartMeansInTheTray)
{
    start({.settings = {{"MINIMIZEONSTART", "1"}}});

    EXPECT_EQ(alice.frmMain().minimized, "yes");
    EXPECT_EQ(alice.frmMain().window.state, Window::State::minimised);
    EXPECT_EQ(alice.forms().historyfrm.showmain.caption, "Show Main");
    // The end of the start shows it once more, minimised; the watch takes it away.
    EXPECT_TRUE(alice.frmMain().window.visible());
    office.run_for(watch);
    EXPECT_FALSE(alice.frmMain().window.visible());
}

TEST_F(StartUpWindows, TheHistoryWindowHangsBelowTheMainWindowFlushRight)
{
    start({.settings = {{"WINPOSX", "1000"}, {"WINPOSY", "2000"}}});

    auto const& history = alice.forms().historyfrm.window;
    EXPECT_FLOAT_EQ(history.left, 1000 + 8205 - history.width);
    EXPECT_FLOAT_EQ(history.top, 2000 + 5370);
}

TEST_F(StartUpWindows, AMainWindowBeyondTheScreenMakesRoomForTheHistoryWindow)
{
    start({.settings = {{"WINPOSY", "12000"}}});

    auto const& history = alice.forms().historyfrm.window;
    float const top = 16200 - 5370 - history.height;
    EXPECT_FLOAT_EQ(alice.frmMain().window.top, top);
    EXPECT_FLOAT_EQ(history.top, top + 5370);
}

TEST_F(StartUpWindows, AMainWindowThatEndsAtTheScreensEdgeStays)
{
    start({.settings = {{"WINPOSY", "10830"}}});

    EXPECT_FLOAT_EQ(alice.frmMain().window.top, 10830);
}

TEST_F(StartUpWindows, TheMainWindowIsShownBeforeTheEndAndAtTheEnd)
{
    std::vector<int> bars;
    frmMain.window.shown.attach(
        [&] { bars.push_back(alice.forms().loading.window.visible() ? 1 : 0); });

    start();

    EXPECT_THAT(bars, ElementsAre(0, 0));
}

TEST_F(StartUpWindows, TheTrayWindowIsHiddenAtBothEndsOfTheStart)
{
    auto& tray = alice.forms().menuform.window;
    tray.show();
    bool shown_at_first = true;
    alice.forms().menuform.trayadd.attach([&] { shown_at_first = tray.visible(); });
    alice.forms().groups.loadgroups.attach([&] { tray.show(); });

    start();

    EXPECT_FALSE(shown_at_first);
    EXPECT_FALSE(tray.visible());
}

TEST_F(StartUpWindows, WithoutAPlaceInTheSettingsTheMainWindowIsCentred)
{
    alice.files.put("settings.txt", "");

    alice.start();

    EXPECT_FLOAT_EQ(alice.frmMain().window.left, (28800.0F - 8205.0F) / 2);
    EXPECT_FLOAT_EQ(alice.frmMain().window.top, (16200.0F - 5370.0F) / 2);
}

TEST_F(StartUpWindows, TheWarningIsHiddenWhateverTheSettingsSay)
{
    alice.files.put("settings.txt", "");
    alice.frmMain().Label5.visible = true;
    alice.frmMain().Frame2.visible = true;

    alice.start();

    EXPECT_FALSE(alice.frmMain().Label5.visible);
    EXPECT_FALSE(alice.frmMain().Frame2.visible);
}

} // namespace
