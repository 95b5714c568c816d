#include "tests/desk/desk_flows.h"

namespace {

using namespace desk;
using namespace flows;
using controls::Window;
using Image = platform::TrayIcon::Image;
using testing::ElementsAre;

/// What a person does to the icon, and the desktop's panel.
class TrayIcon : public Desk {
protected:
    using Desk::Desk;

    void press() const
    {
        alice.enter([this] { icon.left_pressed(); });
    }
    void double_click() const
    {
        alice.enter([this] { icon.double_clicked(); });
    }
    void restart_panel() const
    {
        alice.enter([this] { icon.panel_restarted(); });
    }
    void go_away() { alice.person.choose(alice.forms().menuform.autores, 0); }
    void get_message()
    {
        bob.person.send_to("Alice Meyer", "Lunch?");
        office.settle();
    }
    void close_all() { alice.person.click(frmMain.dissmissall); }

    void expect_icon(Image image, std::string_view tip) const
    {
        EXPECT_TRUE(icon.shown);
        EXPECT_EQ(icon.image, image);
        EXPECT_EQ(icon.tip, tip);
    }

    sim::TrayIcon& icon = alice.tray_icon;
    forms::FrmMain& frmMain = alice.frmMain();
    forms::HistoryFrm& historyfrm = alice.forms().historyfrm;
};

class Tray : public TrayIcon {
protected:
    Tray() : TrayIcon(sim::Setup{.settings = {{"AUTORESPONSEALLOW", "1"}}}) { open(); }
};

TEST_F(TrayIcon, IsAddedInItsNormalImageWithTheLongTip)
{
    start_alice();

    EXPECT_THAT(Lines(icon.steps.begin(), icon.steps.begin() + 3),
                ElementsAre("add", "normal image", "tip Vexlo Instant Messaging"));
    EXPECT_EQ(icon.added, 1);
}

TEST_F(TrayIcon, IsThereBeforeTheFirstFileIsRead)
{
    bool there = false;
    alice.settings().loadbuttons.attach([&] { there = icon.shown; });

    start_alice();

    EXPECT_TRUE(there);
}

TEST_F(TrayIcon, HasTheShortTipOnceTheProgramHasStarted)
{
    start_alice();

    // The first count of the popups has pressed the normal image.
    expect_icon(Image::normal, "Vexlo IM");
}

TEST_F(TrayIcon, IsThereInAHiddenStart)
{
    alice.prepare("Alice Meyer", {.command_line = "/m"});

    start_alice();

    expect_icon(Image::normal, "Vexlo IM");
    EXPECT_FALSE(frmMain.window.visible());
}

TEST_F(TrayIcon, ASecondCopyAddsNone)
{
    alice.process.other_copy = true;
    alice.boxes.will_answer(platform::Answer::ok);

    start_alice();

    EXPECT_EQ(icon.added, 0);
}

TEST_F(Tray, EachImageIsFollowedByItsTip)
{
    auto const& menuform = alice.forms().menuform;
    icon.steps.clear();

    menuform.Command1.run();
    menuform.Command2.run();
    menuform.Command3.run();

    EXPECT_THAT(icon.steps, ElementsAre("waiting image", "tip Vexlo IM", "normal image",
                                        "tip Vexlo IM", "away image", "tip Vexlo IM AWAY"));
}

TEST_F(Tray, AMessageThatWaitsIsSeenAtTheIconUntilItsWindowIsClosed)
{
    get_message();
    expect_icon(Image::waiting, "Vexlo IM");

    alice.person.click(alice.popup(0), alice.popup(0).Command1);
    expect_icon(Image::normal, "Vexlo IM");
}

TEST_F(Tray, TheIconStaysAtWaitingUntilTheLastWindowIsClosed)
{
    get_message();
    get_message();

    alice.person.click(alice.popup(0), alice.popup(0).Command1);
    EXPECT_EQ(icon.image, Image::waiting);

    alice.person.click(alice.popup(1), alice.popup(1).Command1);
    EXPECT_EQ(icon.image, Image::normal);
}

TEST_F(Tray, WhoGoesAwayIsSeenAwayOverMessagesThatWait)
{
    get_message();

    go_away();

    expect_icon(Image::away, "Vexlo IM AWAY");
}

TEST_F(Tray, ClosingTheLastWindowWhileAwayShowsTheNormalImage)
{
    get_message();
    go_away();

    close_all();

    EXPECT_TRUE(frmMain.away.on());
    expect_icon(Image::normal, "Vexlo IM");
}

TEST_F(Tray, WhoComesBackSeesTheMessagesThatWait)
{
    get_message();
    go_away();

    alice.person.type("b");

    expect_icon(Image::waiting, "Vexlo IM");
}

TEST_F(Tray, WhoComesBackToNothingSeesTheNormalImage)
{
    go_away();

    alice.person.type("b");

    expect_icon(Image::normal, "Vexlo IM");
}

TEST_F(Tray, ALeftPressBringsTheMainWindowBack)
{
    alice.person.click(frmMain.spotmin);

    press();

    EXPECT_TRUE(frmMain.window.visible());
    EXPECT_EQ(frmMain.window.state, Window::State::normal);
    EXPECT_EQ(frmMain.minimized, "no");
    EXPECT_EQ(historyfrm.showmain.caption, "Hide Main");
}

TEST_F(Tray, TheWindowThatIsBackStays)
{
    alice.person.click(frmMain.spotmin);
    press();

    office.run_for(2 * watch);

    EXPECT_TRUE(frmMain.window.visible());
}

TEST_F(Tray, ALeftPressOnceStartedShowsNoBox)
{
    press();

    EXPECT_THAT(alice.boxes.texts(), testing::IsEmpty());
}

TEST_F(Tray, ALeftPressBringsBackTheHistoryThatWentWithTheMainWindow)
{
    historyfrm.minmain.set(1);
    alice.person.click(frmMain.history);
    alice.person.click(frmMain.spotmin);
    ASSERT_FALSE(historyfrm.window.visible());

    press();

    EXPECT_TRUE(historyfrm.window.visible());
    EXPECT_FALSE(historyfrm.wasopen.on());
}

TEST_F(Tray, AHistoryThatWasClosedStaysClosed)
{
    historyfrm.minmain.set(1);
    alice.person.click(frmMain.spotmin);

    press();

    EXPECT_FALSE(historyfrm.window.visible());
}

TEST_F(Tray, ADoubleClickBringsBackTheMainWindowAndNothingElse)
{
    historyfrm.minmain.set(1);
    alice.person.click(frmMain.history);
    alice.person.click(frmMain.spotmin);

    double_click();

    EXPECT_TRUE(frmMain.window.visible());
    EXPECT_EQ(frmMain.window.state, Window::State::normal);
    EXPECT_EQ(frmMain.minimized, "no");
    EXPECT_EQ(historyfrm.showmain.caption, "Show Main");
    EXPECT_FALSE(historyfrm.window.visible());
    EXPECT_TRUE(historyfrm.wasopen.on());
}

TEST_F(Tray, ARightClickPopsUpTheMenuOfTheIconAndLeavesTheWindowHidden)
{
    alice.person.click(frmMain.spotmin);
    int popped_up = 0;
    alice.forms().menuform.closepopups.popped_up = [&] { ++popped_up; };

    alice.enter([this] { icon.right_released(); });

    EXPECT_EQ(popped_up, 1);
    EXPECT_FALSE(frmMain.window.visible());
}

TEST_F(Tray, ARestartedPanelGetsTheIconBackWithTheLongTip)
{
    restart_panel();

    EXPECT_EQ(icon.added, 2);
    expect_icon(Image::normal, "Vexlo Instant Messaging");
}

TEST_F(Tray, ARestartedPanelGetsTheAwayImageOfWhoIsAway)
{
    go_away();
    icon.steps.clear();

    restart_panel();

    EXPECT_THAT(icon.steps, ElementsAre("add", "normal image", "tip Vexlo Instant Messaging",
                                        "away image", "tip Vexlo IM AWAY"));
}

TEST_F(Tray, ARestartedPanelGetsTheWaitingImageWhileAPopupIsOpen)
{
    get_message();

    restart_panel();

    expect_icon(Image::waiting, "Vexlo IM");
}

TEST_F(Tray, MessagesThatWaitWinOverTheAwayImageInARestartedPanel)
{
    get_message();
    go_away();
    icon.steps.clear();

    restart_panel();

    EXPECT_THAT(icon.steps,
                ElementsAre("add", "normal image", "tip Vexlo Instant Messaging", "away image",
                            "tip Vexlo IM AWAY", "waiting image", "tip Vexlo IM"));
}

TEST_F(Tray, ARestartedPanelShowsAgainWhoIsAwayAfterTheLastWindowWasClosed)
{
    get_message();
    go_away();
    close_all();

    restart_panel();

    expect_icon(Image::away, "Vexlo IM AWAY");
}

TEST_F(Tray, TheEndOfTheProgramTakesTheIconAway)
{
    alice.person.leave();

    EXPECT_FALSE(icon.shown);
    EXPECT_EQ(icon.steps.back(), "remove");
}

TEST_F(TrayIcon, ATakenPortTakesTheIconAwayToo)
{
    alice.host.taken = {4111};
    alice.boxes.will_answer(platform::Answer::ok);

    start_alice();

    EXPECT_FALSE(alice.running());
    EXPECT_EQ(icon.steps.back(), "remove");
}

} // namespace
