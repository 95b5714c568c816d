#pragma once

#include "forms/groups.h"
#include "qt/bound_window.h"
#include "qt/codec.h"
#include "qt/groups_window.h"
#include "qt/units.h"

namespace qt {

/// Shows `groups`.
class GroupsBinder {
public:
    /// All must outlive the binder.
    GroupsBinder(forms::Groups& form, QWidget& owner, Codec const& codec, Units const& units);

    void show() { frame_.show(); }
    [[nodiscard]] QWidget& window() { return window_; }

private:
    GroupsWindow window_;
    BoundWindow frame_;
};

} // namespace qt
