#pragma once

#include "forms/others.h"
#include "qt/bindings.h"
#include "qt/codec.h"
#include "qt/splash_window.h"
#include "qt/units.h"
#include "qt/window_binder.h"

namespace qt {

/// Shows `loading`.
class SplashBinder {
public:
    /// All must outlive the binder.
    SplashBinder(forms::Loading& loading, Codec const& codec, Units const& units);

    void show();
    [[nodiscard]] QWidget& window() { return window_; }

private:
    void repaint();

    SplashWindow window_;
    Bindings bindings_;
    WindowBinder frame_;
};

} // namespace qt
