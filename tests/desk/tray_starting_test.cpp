#include "tests/desk/desk_flows.h"

namespace {

using namespace desk;

/// A first start. The icon is there from the first moment on, and so is the mouse.
class TrayWhileStarting : public Desk {
protected:
    TrayWhileStarting() { alice.files.erase("settings.txt"); }

    /// Starts; while the program asks for the name, this happens.
    void start_and(std::string_view command_line, std::function<void()> const& action)
    {
        alice.process.arguments = command_line;
        alice.boxes.will_enter("Alice").meanwhile(action);
        alice.start();
    }
    /// The box that a left press brings up. What happens meanwhile is the story's.
    sim::ScriptedBoxes::Reply& will_tell_value()
    {
        return alice.boxes.will_answer(platform::Answer::ok);
    }
    void press()
    {
        will_tell_value();
        icon.left_pressed();
    }
    void open_history()
    {
        historyfrm.window.show();
        historyfrm.wasopen.set(1);
    }
    void expect_normal_icon(std::string_view tip) const
    {
        EXPECT_TRUE(icon.shown);
        EXPECT_EQ(icon.image, platform::TrayIcon::Image::normal);
        EXPECT_EQ(icon.tip, tip);
    }

    sim::TrayIcon& icon = alice.tray_icon;
    forms::FrmMain& frmMain = alice.frmMain();
    forms::HistoryFrm& historyfrm = alice.forms().historyfrm;
};

TEST_F(TrayWhileStarting, ALeftPressShowsTheBarsValue)
{
    start_and("", [this] { press(); });

    ASSERT_EQ(alice.boxes.shown().size(), 2U);
    EXPECT_EQ(alice.boxes.shown()[1].text, "30");
    EXPECT_EQ(alice.boxes.shown()[1].title, "Vexlo Instant Messaging");
    EXPECT_EQ(alice.boxes.shown()[1].buttons, platform::Buttons::ok);
    EXPECT_TRUE(alice.running());
}

TEST_F(TrayWhileStarting, TheMainWindowIsBroughtUpBeforeTheValueIsTold)
{
    bool told = false;
    start_and("", [&] {
        will_tell_value().meanwhile([&] {
            told = true;
            EXPECT_TRUE(frmMain.window.visible());
            EXPECT_EQ(frmMain.minimized, "no");
            EXPECT_EQ(historyfrm.showmain.caption, "Hide Main");
        });
        icon.left_pressed();
    });

    EXPECT_TRUE(told);
}

TEST_F(TrayWhileStarting, TheBoxOfTheValueLetsRowsWaitLikeEveryBox)
{
    bool told = false;
    start_and("", [&] {
        frmMain.cue.emplace_back("***[ROOM07\\BOB]=BOB");
        will_tell_value().meanwhile([&] {
            told = true;
            EXPECT_EQ(frmMain.boxopen.value(), 1);
            EXPECT_FALSE(frmMain.Timer3.enabled());
        });
        icon.left_pressed();
        EXPECT_EQ(frmMain.boxopen.value(), 0);
        EXPECT_TRUE(frmMain.Timer3.enabled());
    });

    EXPECT_TRUE(told);
}

TEST_F(TrayWhileStarting, ALeftPressBringsBackAHistoryThatWasOpen)
{
    start_and("", [this] {
        historyfrm.wasopen.set(1);
        press();
        EXPECT_TRUE(historyfrm.window.visible());
        EXPECT_FALSE(historyfrm.wasopen.on());
    });
}

TEST_F(TrayWhileStarting, ALeftPressInAHiddenStartTellsTheValueAndClosesTheHistory)
{
    start_and("/m", [this] {
        open_history();
        press();
        EXPECT_FALSE(historyfrm.window.visible());
        EXPECT_FALSE(historyfrm.wasopen.on());
    });

    EXPECT_EQ(alice.boxes.shown().back().text, "30");
}

TEST_F(TrayWhileStarting, TheHiddenStartIsKnownInAnyCase)
{
    start_and("/M", [this] {
        open_history();
        press();
        EXPECT_FALSE(historyfrm.window.visible());
    });
}

TEST_F(TrayWhileStarting, OtherArgumentsMakeNoHiddenStart)
{
    start_and("/m now", [this] {
        open_history();
        press();
        EXPECT_TRUE(historyfrm.window.visible());
    });
}

TEST_F(TrayWhileStarting, ADoubleClickTellsNothing)
{
    start_and("", [this] { icon.double_clicked(); });

    EXPECT_EQ(alice.boxes.shown().size(), 1U);
}

TEST_F(TrayWhileStarting, ARestartedPanelGetsTheIconBack)
{
    start_and("", [this] {
        icon.panel_restarted();
        expect_normal_icon("Vexlo Instant Messaging");
    });

    EXPECT_EQ(icon.added, 2);
    expect_normal_icon("Vexlo IM"); // The load of the settings has told who is away.
}

} // namespace
