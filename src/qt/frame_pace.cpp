#include "qt/frame_pace.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace qt {

namespace {

/// What a datagram brings about by itself, and what showing it brings about.
bool is_traffic(QEvent const& event)
{
    switch (event.type()) {
    case QEvent::SockAct:
    case QEvent::UpdateRequest:
    case QEvent::UpdateLater:
    case QEvent::Paint:
    case QEvent::LayoutRequest:
        return true;
    default:
        return false;
    }
}

} // namespace

FramePace::FramePace(std::chrono::milliseconds frame, std::function<void()> show)
    : frame_(frame), show_(std::move(show))
{
    late_.setSingleShot(true);
    late_.setInterval(frame_);
    QCoreApplication::instance()->installEventFilter(this);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &FramePace::look);
}

bool FramePace::eventFilter(QObject* /*object*/, QEvent* event)
{
    if (!is_traffic(*event)) {
        only_traffic_ = false;
    }
    return false;
}

void FramePace::look()
{
    if (!only_traffic_ || since_shown_.hasExpired(frame_.count())) {
        late_.stop();
        show_();
        since_shown_.start();
        only_traffic_ = true;
    } else if (!late_.isActive()) {
        late_.start(); // Its tick is no traffic.
    }
}

} // namespace qt
