#include "qt/frame_pace.h"

#include <QAbstractEventDispatcher>

#include <utility>

namespace qt {

FramePace::FramePace(std::chrono::milliseconds frame, std::function<void()> show)
    : frame_(frame), show_(std::move(show))
{
    late_.setSingleShot(true);
    late_.setTimerType(Qt::PreciseTimer);
    // It only wakes the loop, which then looks: showing here would have the loop look once more.
    late_.setInterval(frame_ + std::chrono::milliseconds(1));
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &FramePace::look);
}

void FramePace::look()
{
    if (!since_shown_.isValid() || since_shown_.hasExpired(frame_.count())) {
        late_.stop();
        since_shown_.start();
        show_();
    } else if (!late_.isActive()) {
        late_.start();
    }
}

} // namespace qt
