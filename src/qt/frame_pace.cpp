#include "qt/frame_pace.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace qt {

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
    seen_ = std::max(seen_, kind_of(*event));
    return false;
}

FramePace::Seen FramePace::kind_of(QEvent const& event)
{
    switch (event.type()) {
    case QEvent::UpdateRequest:
    case QEvent::UpdateLater:
    case QEvent::Paint:
    case QEvent::LayoutRequest:
        return Seen::painting;
    case QEvent::SockAct:
        return Seen::traffic;
    default:
        return Seen::doings;
    }
}

void FramePace::look()
{
    if (seen_ == Seen::painting) {
        return;
    }
    if (seen_ == Seen::doings || since_shown_.hasExpired(frame_.count())) {
        late_.stop();
        show_();
        since_shown_.start();
        seen_ = Seen::painting;
    } else if (!late_.isActive()) {
        late_.start(); // Its tick is no traffic.
    }
}

} // namespace qt
