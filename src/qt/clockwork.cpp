#include "qt/clockwork.h"

#include <QTimer>

namespace qt {

Clockwork::Clockwork(forms::FrmMain& frmMain, QObject& owner) : owner_(owner)
{
    bind(frmMain.Timer1, QStringLiteral("Timer1"), Qt::CoarseTimer);
    bind(frmMain.Timer2, QStringLiteral("Timer2"), Qt::VeryCoarseTimer);
    // A coarse timer of 120 ms ticks every 125: the queue's pace wants a precise one.
    bind(frmMain.Timer3, QStringLiteral("Timer3"), Qt::PreciseTimer);
}

void Clockwork::bind(controls::Timer& timer, QString const& name, Qt::TimerType precision)
{
    auto* const clock = new QTimer(&owner_);
    clock->setObjectName(name);
    clock->setTimerType(precision);
    clock->setInterval(timer.interval_ms);
    connect(clock, &QTimer::timeout, this, [&timer] { timer.tick.run(); });
    timer.switched.attach([this, &timer, clock] {
        if (timer.enabled() && !stopped_) {
            clock->start();
        } else {
            clock->stop();
        }
    });
}

void Clockwork::stop()
{
    stopped_ = true;
    for (QTimer* const clock : owner_.findChildren<QTimer*>(Qt::FindDirectChildrenOnly)) {
        clock->stop();
    }
}

} // namespace qt
