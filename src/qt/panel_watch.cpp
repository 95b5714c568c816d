#include "qt/panel_watch.h"

namespace qt {

void PanelWatch::look(Time now)
{
    if (looked_ && now - *looked_ < patience) {
        return;
    }
    looked_ = now;
    if (is_there_()) {
        missing_ = false;
        if (std::exchange(gone_since_, std::nullopt)) {
            came();
        }
        return;
    }
    if (!gone_since_) {
        gone_since_ = now;
    }
    missing_ = now - *gone_since_ >= patience;
}

} // namespace qt
