#include "qt/frame_pace.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

/// Lets the event loop come to the point where it would wait, as a datagram's arrival does.
void wake_up()
{
    QCoreApplication::postEvent(qApp, new QEvent(QEvent::User));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

/// Wakes the loop until `shown` has counted so far; bounded.
void wake_up_until(int const& shown, int count)
{
    QElapsedTimer time;
    time.start();
    while (shown < count && !time.hasExpired(5'000)) {
        wake_up();
    }
}

TEST(FramePace, TheFirstPictureIsShownAtOnce)
{
    int shown = 0;
    qt::FramePace const pace(1h, [&shown] { ++shown; });

    wake_up_until(shown, 1);

    EXPECT_EQ(shown, 1);
}

TEST(FramePace, AStormOfDatagramsCostsOnePictureAFrame)
{
    int shown = 0;
    qt::FramePace const pace(1h, [&shown] { ++shown; });

    for (int datagram = 0; datagram < 1'000; ++datagram) {
        wake_up();
    }

    EXPECT_EQ(shown, 1);
}

TEST(FramePace, WhatWasPutOffIsShownWithoutAFurtherEvent)
{
    int shown = 0;
    QEventLoop waiting;
    qt::FramePace const pace(20ms, [&] {
        if (++shown == 2) {
            waiting.quit();
        }
    });
    wake_up_until(shown, 1);
    wake_up();

    bool in_vain = false;
    QTimer::singleShot(5'000, &waiting, [&] {
        in_vain = true;
        waiting.quit();
    });
    if (shown < 2) {
        waiting.exec();
    }

    EXPECT_FALSE(in_vain);
}

TEST(FramePace, AnIdleProgramShowsNothing)
{
    int shown = 0;
    qt::FramePace const pace(1ms, [&shown] { ++shown; });
    wake_up_until(shown, 2);
    int const before = shown;

    QEventLoop idle;
    QTimer::singleShot(300, &idle, &QEventLoop::quit);
    idle.exec();

    EXPECT_LE(shown, before + 3) << "a picture may be due, the end of the wait is one";
}

} // namespace
