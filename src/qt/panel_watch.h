#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace qt {

/// Watches whether the desktop has a notification area: it comes and goes with the desktop's panel,
/// and some desktops never have one.
///
/// The watch has no timer of its own. It looks when it is told to, which is whenever the event loop
/// is about to wait, and then at most every five seconds.
class PanelWatch {
public:
    using Time = std::chrono::milliseconds;

    /// Between two looks; and time enough for a panel that starts with the program, or anew.
    static constexpr Time patience{5000};

    explicit PanelWatch(std::function<bool()> is_there) : is_there_(std::move(is_there)) {}

    /// `now` counts from any moment.
    void look(Time now);
    /// The desktop has spoken: the next look is a real one.
    void look_soon() { looked_.reset(); }
    /// There has been no notification area for some time.
    [[nodiscard]] bool is_missing() const { return missing_; }

    /// The area is there, and was not; or it is another one than at the last look.
    std::function<void()> came = [] {};
    /// The window that shows the icon there, as far as it is known: each area has its own.
    std::function<std::uintptr_t()> shown_by = [] { return std::uintptr_t{0}; };

private:
    [[nodiscard]] bool is_another();

    std::function<bool()> is_there_;
    std::optional<Time> looked_;
    std::optional<Time> gone_since_;
    std::uintptr_t window_ = 0;
    bool missing_ = false;
};

} // namespace qt
