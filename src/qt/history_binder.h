#pragma once

#include "forms/others.h"
#include "qt/bound_window.h"
#include "qt/codec.h"
#include "qt/history_window.h"
#include "qt/menu_binder.h"
#include "qt/units.h"

namespace qt {

/// Shows `historyfrm`.
class HistoryBinder {
public:
    /// All must outlive the binder.
    HistoryBinder(forms::HistoryFrm& form, Codec const& codec, Units const& units);

    void show() { frame_.show(); }
    [[nodiscard]] QWidget& window() { return window_; }

private:
    HistoryWindow window_;
    MenuBinder mnuoptions_;
    BoundWindow frame_;
};

} // namespace qt
