#pragma once

#include "forms/fwd_to_frm.h"
#include "qt/bound_window.h"
#include "qt/codec.h"
#include "qt/forward_dialog.h"
#include "qt/units.h"

namespace qt {

/// Shows `fwdtofrm`.
class ForwardBinder {
public:
    /// All must outlive the binder.
    ForwardBinder(forms::FwdToFrm& form, QWidget& owner, Codec const& codec, Units const& units);

    void show() { frame_.show(); }
    [[nodiscard]] QWidget& window() { return window_; }

private:
    ForwardDialog window_;
    BoundWindow frame_;
};

} // namespace qt
