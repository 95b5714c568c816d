#include "qt/frame_pace.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>

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
    if (event->type() != QEvent::SockAct) {
        only_sockets_ = false;
    }
    return false;
}

void FramePace::look()
{
    if (!only_sockets_ || since_shown_.hasExpired(frame_.count())) {
        late_.stop();
        show_();
        since_shown_.start();
        only_sockets_ = true;
    } else if (!late_.isActive()) {
        late_.start(); // Its tick is no socket's.
    }
}

} // namespace qt
