#pragma once

#include "forms/popup.h"
#include "qt/bindings.h"
#include "qt/codec.h"
#include "qt/popup_window.h"
#include "qt/units.h"
#include "qt/window_binder.h"

namespace qt {

/// Shows one message window.
class PopupBinder {
public:
    /// All must outlive the binder. `name` is the window's: "popup0" to "popup9", "popuplast".
    PopupBinder(forms::Popup& popup, QString const& name, Codec const& codec, Units const& units);

    /// A window that is hidden costs nothing; it is made equal to its form as it comes up.
    void show();
    [[nodiscard]] QWidget& window() { return window_; }

private:
    void bind();

    forms::Popup& popup_;
    PopupWindow window_;
    Bindings bindings_;
    WindowBinder frame_;
};

} // namespace qt
