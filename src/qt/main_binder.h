#pragma once

#include "forms/forms.h"
#include "qt/bindings.h"
#include "qt/codec.h"
#include "qt/main_window.h"
#include "qt/units.h"
#include "qt/window_binder.h"

namespace qt {

/// Shows `frmMain`.
class MainBinder {
public:
    /// All must outlive the binder.
    MainBinder(forms::Forms& forms, Codec const& codec, Units const& units);

    void show();
    [[nodiscard]] QWidget& window() { return window_; }
    [[nodiscard]] WindowBinder& frame() { return frame_; }

private:
    void bind_recipients(forms::FrmMain& form);
    void bind_message(forms::FrmMain& form);
    void bind_tools(forms::FrmMain& form);
    void bind_bars(forms::FrmMain& form);

    MainWindow window_;
    Bindings bindings_;
    WindowBinder frame_;
};

} // namespace qt
