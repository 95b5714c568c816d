#include "qt/panel_watch.h"

namespace qt {

void PanelWatch::look(Time now)
{
    if (window_ == 0) {
        window_ = shown_by(); // As soon as there is one: its panel may go before the next look.
    }
    if (looked_ && now - *looked_ < patience) {
        return;
    }
    looked_ = now;
    if (is_there_()) {
        missing_ = false;
        bool const another = is_another();
        if (std::exchange(gone_since_, std::nullopt) || another) {
            came();
        }
        return;
    }
    if (!gone_since_) {
        gone_since_ = now;
    }
    missing_ = now - *gone_since_ >= patience;
}

bool PanelWatch::is_another()
{
    auto const window = shown_by();
    auto const before = window == 0 ? window_ : std::exchange(window_, window);
    return before != 0 && before != window_;
}

} // namespace qt
