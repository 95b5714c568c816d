#include "qt/panel_watch.h"
#include "qt/shell.h"
#include "tests/qt/frames.h"

#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QMenu>
#include <QTimer>
#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using desk::words;

struct Panel : testing::Test {
    Panel()
    {
        watch.came = [this] { ++comes; };
    }

    bool there = true;
    int looks = 0;
    int comes = 0;
    qt::PanelWatch watch{[this] {
        ++looks;
        return there;
    }};
};

TEST_F(Panel, OneThatIsThereFromTheStartIsNoNews)
{
    watch.look(0ms);
    EXPECT_FALSE(watch.is_missing());
    EXPECT_EQ(comes, 0);
}

TEST_F(Panel, IsLookedForAtMostEveryFiveSeconds)
{
    for (auto now = 0ms; now < 10s; now += 100ms) {
        watch.look(now);
    }
    EXPECT_EQ(looks, 2);
}

TEST_F(Panel, IsLookedForAtOnceWhenTheDesktopSpeaks)
{
    watch.look(0ms);
    watch.look_soon();
    watch.look(1ms);
    EXPECT_EQ(looks, 2);
}

TEST_F(Panel, HasSomeTimeToComeUp)
{
    there = false;
    watch.look(0ms);
    EXPECT_FALSE(watch.is_missing());
    watch.look(5s);
    EXPECT_TRUE(watch.is_missing());
}

TEST_F(Panel, ThatComesBackIsTold)
{
    watch.look(0ms);
    there = false;
    watch.look(5s);
    EXPECT_FALSE(watch.is_missing());
    there = true;
    watch.look(10s);
    EXPECT_EQ(comes, 1);
    watch.look(15s);
    EXPECT_EQ(comes, 1);
}

TEST_F(Panel, ThatComesLateIsToldAndNotMissingAnyMore)
{
    there = false;
    watch.look(0ms);
    watch.look(5s);
    there = true;
    watch.look(10s);
    EXPECT_FALSE(watch.is_missing());
    EXPECT_EQ(comes, 1);
}

TEST_F(Panel, ThatWasStartedAgainBetweenTwoLooksIsKnownByItsWindow)
{
    std::uintptr_t window = 0;
    watch.shown_by = [&window] { return window; };
    watch.look(0ms);
    window = 7; // The icon has found its place.
    watch.look(1s);
    window = 0; // It looks for its place in the new panel.
    watch.look(5s);
    EXPECT_EQ(comes, 0);
    window = 8;
    watch.look(10s);
    EXPECT_EQ(comes, 1);
    watch.look(15s);
    EXPECT_EQ(comes, 1);
}

TEST_F(Panel, ThatIsBackWithAnotherWindowIsToldOnce)
{
    std::uintptr_t window = 7;
    watch.shown_by = [&window] { return window; };
    watch.look(0ms);
    there = false;
    watch.look(5s);
    there = true;
    window = 8;
    watch.look(10s);
    watch.look(15s);
    EXPECT_EQ(comes, 1);
}

struct Hidden : testing::Test, desk::MainDesk {
    void hide_it()
    {
        form.window.state = controls::Window::State::minimised;
        form.window.hide();
        show();
    }
};

TEST_F(Hidden, TheMainWindowIsGoneWhereATrayIconBringsItBack)
{
    hide_it();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Hidden, TheMainWindowStaysInTheTaskBarWhereNothingElseIsSeen)
{
    binder.frame().stays_in_task_bar = true;
    hide_it();
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.isMinimized());
    EXPECT_FALSE(form.window.visible()) << "for the logic it is hidden";
}

TEST_F(Hidden, TheMainWindowComesToTheTaskBarWhenThePanelIsLost)
{
    hide_it();
    binder.frame().stays_in_task_bar = true;
    show();
    EXPECT_TRUE(window.isMinimized());
    EXPECT_TRUE(window.isVisible());

    binder.frame().stays_in_task_bar = false;
    show();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Hidden, BroughtBackFromTheTaskBarItTellsSo)
{
    int times = 0;
    binder.frame().stays_in_task_bar = true;
    binder.frame().brought_back = [&] {
        ++times;
        form.window.state = controls::Window::State::normal;
        form.window.show();
    };
    hide_it();
    EXPECT_EQ(times, 0);
    window.setWindowState(Qt::WindowNoState);
    show();
    EXPECT_EQ(times, 1);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(Hidden, AWindowThatNeverCameUpIsNotInTheTaskBar)
{
    desk::Desk other;
    qt::MainBinder fresh(other.forms, other.codec, other.units);
    fresh.frame().stays_in_task_bar = true;
    fresh.show();
    EXPECT_FALSE(fresh.window().isVisible());
}

struct WholeDesk : testing::Test, desk::Desk {
    qt::Shell shell{forms, codec, units};

    [[nodiscard]] static QWidget& top(char const* name)
    {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String(name)) {
                return *window;
            }
        }
        throw std::runtime_error(name);
    }
};

TEST_F(WholeDesk, HasEveryWindowByItsName)
{
    for (char const* name : {"frmMain", "loading", "historyfrm", "log", "settings", "groups",
                             "fwdtofrm", "popup0", "popup9", "popuplast"}) {
        EXPECT_FALSE(top(name).isVisible()) << name;
    }
}

TEST_F(WholeDesk, TheDesksWindowsBelongToTheMainWindowAndAMessageToNobody)
{
    for (char const* name : {"log", "settings", "groups"}) {
        EXPECT_EQ(top(name).parentWidget(), &top("frmMain")) << name;
    }
    EXPECT_EQ(top("fwdtofrm").parentWidget(), &top("settings"));
    for (char const* name : {"popup0", "popup9", "popuplast"}) {
        EXPECT_EQ(top(name).parentWidget(), nullptr) << name;
    }
}

TEST_F(WholeDesk, EveryWindowFollowsItsFormWheneverTheLoopWaits)
{
    forms.log.window.show();
    forms.historyfrm.window.show();
    desk::settle();
    EXPECT_TRUE(top("log").isVisible());
    EXPECT_TRUE(top("historyfrm").isVisible());

    forms.log.window.caption = "Another caption";
    QEventLoop loop;
    QTimer::singleShot(10, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_EQ(top("log").windowTitle(), words("Another caption"));
}

TEST_F(WholeDesk, TheTrayIconHasItsMenu)
{
    qt::DeskTray tray(codec);
    shell.use_tray(tray);
    std::size_t chosen = 9;
    forms.menuform.closepopups.chosen = [&chosen](std::size_t entry) { chosen = entry; };
    auto* const menu = top("frmMain").findChild<QMenu*>(words("closepopups"));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().size(), 3);
    forms.menuform.closepopups[0].enabled = true;
    shell.show();
    menu->actions().constFirst()->trigger();
    EXPECT_EQ(chosen, 0U);
}

TEST_F(WholeDesk, ItsMenusHaveTheirEntriesInOrderHiddenOnesToo)
{
    auto const& main = top("frmMain");
    EXPECT_THAT(desk::captions(desk::in<QMenu>(main, "toolsmenu")),
                testing::ElementsAre("Change Settings", "(-)", "Find Other Users", "-",
                                     "Configure Groups", "-", "Check for Updates", "-", "View Logs",
                                     "Open saved msgs folder", "-", "Help", "On-line Help", "(-)",
                                     "(Recall last popup)"));
    EXPECT_THAT(
        desk::captions(desk::in<QMenu>(main, "closepopups")),
        testing::ElementsAre("Close all popups", "Recall last popup", "(Enable Auto Respond)"));
    EXPECT_THAT(desk::captions(desk::in<QMenu>(main, "autores")),
                testing::ElementsAre("I'm away from my desk", "I'm out of the office",
                                     "I'm in a meeting", "()", "Auto Respond Off"));
    EXPECT_EQ(desk::in<QMenu>(main, "toolsmenu").title(), words("Tools"));
    EXPECT_EQ(desk::in<QMenu>(main, "autores").title(), words("Autorespond"));
}

TEST_F(WholeDesk, EveryMessageWindowHasItsHiddenCommands)
{
    int runs = 0;
    forms.popup[3].colourmessage.attach([&runs] { ++runs; });
    forms.popup[3].ontop.attach([&runs] { ++runs; });
    forms.popuplast.ontopoff.attach([&runs] { ++runs; });
    for (auto const& [window, name] :
         {std::pair{"popup3", "colourmessage"}, std::pair{"popup3", "ontop"},
          std::pair{"popuplast", "ontopoff"}}) {
        auto* const action = top(window).findChild<QAction*>(words(name));
        ASSERT_NE(action, nullptr) << name;
        action->trigger();
    }
    EXPECT_EQ(runs, 3);
}

TEST_F(WholeDesk, ThePointerIsAnHourglassWhileTheMainWindowIsBusy)
{
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    forms.frmMain.window.busy.run();
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    forms.frmMain.window.idle.run();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(WholeDesk, RoutinesWithoutAControlAreReachedByName)
{
    int runs = 0;
    forms.settings.Command7.attach([&runs] { ++runs; });
    auto* const action = top("settings").findChild<QAction*>(words("Command7"));
    ASSERT_NE(action, nullptr);
    action->trigger();
    EXPECT_EQ(runs, 1);
}

} // namespace
