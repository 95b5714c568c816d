#include "qt/frame_pace.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

/// Wakes the event loop by an event of that kind, and lets it come to where it would wait again.
void wake_up(QEvent::Type kind)
{
    QCoreApplication::postEvent(qApp, new QEvent(kind));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

/// What is left of earlier tests comes first; bounded.
void wake_up_until_shown(int const& shown)
{
    QElapsedTimer time;
    time.start();
    while (shown == 0 && !time.hasExpired(5'000)) {
        wake_up(QEvent::User);
    }
}

TEST(FramePace, WhatAPersonDidIsShownAtOnceEachTime)
{
    int shown = 0;
    qt::FramePace const pace(1h, [&shown] { ++shown; });
    wake_up_until_shown(shown);

    for (int key = 0; key < 10; ++key) {
        int const before = shown;
        for (int round = 0; round < 10 && shown == before; ++round) {
            wake_up(QEvent::User);
        }
        EXPECT_GT(shown, before);
    }
}

TEST(FramePace, AStormOfDatagramsCostsOnePictureAFrame)
{
    int shown = 0;
    qt::FramePace const pace(1h, [&shown] { ++shown; });
    wake_up_until_shown(shown);

    int const before = shown;
    for (int datagram = 0; datagram < 1'000; ++datagram) {
        wake_up(QEvent::SockAct);
        wake_up(QEvent::UpdateRequest); // The depth of the queue is painted.
    }

    EXPECT_LE(shown, before + 1);
}

TEST(FramePace, WhatWasPutOffIsShownWithoutAFurtherEvent)
{
    int shown = 0;
    int wanted = -1;
    QEventLoop waiting;
    qt::FramePace const pace(100ms, [&] {
        if (++shown == wanted) {
            waiting.quit();
        }
    });
    wake_up_until_shown(shown);
    wanted = shown + 1;
    wake_up(QEvent::SockAct);

    bool in_vain = false;
    QTimer::singleShot(5'000, &waiting, [&] {
        in_vain = true;
        waiting.quit();
    });
    if (shown < wanted) {
        waiting.exec();
    }

    EXPECT_FALSE(in_vain);
}

TEST(FramePace, PaintingAloneNeitherShowsNorWakesLater)
{
    int shown = 0;
    qt::FramePace const pace(1ms, [&shown] { ++shown; });
    wake_up_until_shown(shown);
    wake_up(QEvent::UpdateRequest); // The event that woke it is shown, too.
    int const before = shown;

    for (int picture = 0; picture < 20; ++picture) {
        QThread::msleep(2); // Each in a frame of its own.
        wake_up(QEvent::UpdateRequest);
    }

    EXPECT_EQ(shown, before);
}

TEST(FramePace, AnIdleProgramShowsNothing)
{
    int shown = 0;
    qt::FramePace const pace(1ms, [&shown] { ++shown; });
    wake_up_until_shown(shown);
    wake_up(QEvent::SockAct);
    int const before = shown;

    QEventLoop idle;
    QTimer::singleShot(300, &idle, &QEventLoop::quit);
    idle.exec();

    EXPECT_LE(shown, before + 4) << "one may be due, and the end of the wait is one";
}

} // namespace
