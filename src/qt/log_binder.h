#pragma once

#include "forms/others.h"
#include "qt/bound_window.h"
#include "qt/codec.h"
#include "qt/log_window.h"
#include "qt/units.h"

namespace qt {

/// Shows `log`.
class LogBinder {
public:
    /// All must outlive the binder.
    LogBinder(forms::Log& form, QWidget& owner, Codec const& codec, Units const& units);

    void show() { frame_.show(); }
    [[nodiscard]] QWidget& window() { return window_; }

private:
    LogWindow window_;
    BoundWindow frame_;
};

} // namespace qt
