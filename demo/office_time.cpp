#include "demo/office_time.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>

namespace demo {

namespace {

constexpr std::chrono::milliseconds between_beats(16);
/// A machine that slept does not make up for it.
constexpr qint64 longest_step = 250;

} // namespace

OfficeTime::OfficeTime(sim::Office& office, Pace pace) : office_(office), pace_(pace)
{
    since_beat_.start();
    if (is_seen()) {
        plan_beat();
    }
}

void OfficeTime::pass(std::chrono::milliseconds time)
{
    if (!is_seen()) {
        office_.run_for(time);
        stepped();
        interrupted();
        return;
    }
    auto const end = office_.scheduler.now() + time;
    while (office_.scheduler.now() < end) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        interrupted();
    }
}

void OfficeTime::plan_beat()
{
    // One timer a beat: a box that comes up in a beat has its own loop, and the next beat in it.
    QTimer::singleShot(between_beats, this, [this] { beat(); });
}

void OfficeTime::beat()
{
    plan_beat();
    auto const step = std::min(since_beat_.restart(), longest_step);
    office_.run_for(std::chrono::milliseconds(step * speed));
    stepped();
}

} // namespace demo
