#include "tests/qt/desk.h"

#include <QLabel>
#include <QWindow>
#include <gtest/gtest.h>

namespace {

using desk::MainDesk;
using desk::PopupDesk;

struct Frame : testing::Test, MainDesk {};

TEST_F(Frame, HasItsSizeAndNoTitleBarOfTheWindowSystem)
{
    EXPECT_EQ(window.size(), QSize(units.pixels(8205), units.pixels(5370)));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(window.windowType(), Qt::Window) << "what the task bar lists";
}

TEST_F(Frame, ACloseRequestNeitherEndsNorHidesIt)
{
    int ends = 0;
    form.spotx.clicked.attach([&ends] { ++ends; });
    window.windowHandle()->close();
    window.close();
    show();

    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(form.window.visible());
    EXPECT_EQ(ends, 0);
}

TEST_F(Frame, GoesAndComesWithTheForm)
{
    form.window.hide();
    EXPECT_FALSE(window.isVisible()) << "at once";
    form.window.show();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(Frame, MinimisesAndComesBackWithTheForm)
{
    form.window.state = controls::Window::State::minimised;
    show();
    EXPECT_TRUE(window.isMinimized());

    form.window.state = controls::Window::State::normal;
    form.window.show();
    show();
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(window.isActiveWindow());
}

TEST_F(Frame, ShownWhileMinimisedItStaysMinimised)
{
    form.window.state = controls::Window::State::minimised;
    show();

    form.window.show();
    show();

    EXPECT_TRUE(window.isMinimized());
    EXPECT_EQ(form.window.state, controls::Window::State::minimised);
}

TEST_F(Frame, HiddenWhileMinimisedItComesBackNormal)
{
    form.window.state = controls::Window::State::minimised;
    form.window.hide();
    show();
    EXPECT_FALSE(window.isVisible());

    form.window.state = controls::Window::State::normal;
    form.window.show();
    show();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(Frame, TheFormHearsWhatTheTaskBarDoes)
{
    window.setWindowState(Qt::WindowMinimized);
    EXPECT_EQ(form.window.state, controls::Window::State::minimised);
    show();
    EXPECT_TRUE(window.isMinimized());

    window.setWindowState(Qt::WindowNoState);
    EXPECT_EQ(form.window.state, controls::Window::State::normal);
}

TEST_F(Frame, CarriesTheCaptionOfTheForm)
{
    form.window.caption = "Vexlo - Alice Meyer 1";
    show();

    EXPECT_EQ(window.windowTitle(), desk::words("Vexlo - Alice Meyer 1"));
}

TEST_F(Frame, StandsWhereTheFormSays)
{
    form.window.place(1500, 750);
    show();

    EXPECT_EQ(window.pos(), QPoint(units.pixels(1500), units.pixels(750)));
    EXPECT_FLOAT_EQ(form.window.left, 1500);
}

TEST_F(Frame, APlaceFromCodeIsNoMoveOfAPerson)
{
    int moves = 0;
    form.window.moved.attach([&moves] { ++moves; });
    form.window.place(1500, 750);
    show();

    EXPECT_EQ(moves, 0);
}

TEST_F(Frame, AMoveReachesTheForm)
{
    int moves = 0;
    form.window.moved.attach([&moves] { ++moves; });
    window.move(40, 30);
    show();

    EXPECT_FLOAT_EQ(form.window.left, units.twips(40));
    EXPECT_FLOAT_EQ(form.window.top, units.twips(30));
    EXPECT_TRUE(form.window.placed);
    EXPECT_EQ(moves, 1);
    EXPECT_EQ(window.pos(), QPoint(40, 30));
}

/// Presses the left button at `start`, drags, and lets go.
void drag(QWidget& window, QPoint start, QPoint by)
{
    QWindow* const surface = window.windowHandle();
    QTest::mousePress(surface, Qt::LeftButton, {}, start);
    QTest::mouseMove(surface, start + by);
    desk::settle();
    QTest::mouseRelease(surface, Qt::LeftButton, {}, start);
    desk::settle();
}

TEST_F(Frame, IsMovedByItsSurfaceAndItsTitle)
{
    form.window.place(units.twips(100), units.twips(100));
    show();
    drag(window, QPoint(4, window.height() / 2), QPoint(7, 5));
    EXPECT_EQ(window.pos(), QPoint(107, 105));

    QWidget const& title = control("title");
    drag(window, title.mapTo(&window, title.rect().center()), QPoint(-7, 5));
    EXPECT_EQ(window.pos(), QPoint(100, 110));
    EXPECT_FLOAT_EQ(form.window.top, units.twips(110));
}

TEST_F(Frame, IsNotMovedByItsButtonsAndTexts)
{
    form.window.place(units.twips(100), units.twips(100));
    show();
    for (char const* name : {"sendbtn", "messagetext", "allusers", "qb(1)", "SSTab1"}) {
        QWidget const& part = control(name);
        drag(window, part.mapTo(&window, QPoint(8, 8)), QPoint(7, 5));
        EXPECT_EQ(window.pos(), QPoint(100, 100)) << name;
    }
}

TEST_F(Frame, TellsTheFormThatItIsActive)
{
    int activations = 0;
    form.window.activated.attach([&activations] { ++activations; });
    PopupDesk other;
    other.activate();
    EXPECT_EQ(activations, 0);

    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(activations, 1);
}

TEST_F(Frame, AMessageWindowComesUpWithoutTheKeyboard)
{
    PopupDesk message;

    EXPECT_TRUE(message.window.isVisible());
    EXPECT_TRUE(message.window.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(window.testAttribute(Qt::WA_ShowWithoutActivating));
}

} // namespace
