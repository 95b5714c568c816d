#pragma once

#include "controls/window.h"
#include "qt/bindings.h"
#include "qt/codec.h"
#include "qt/modal_wait.h"
#include "qt/units.h"
#include "qt/window_binder.h"

#include <QWidget>

#include <functional>

namespace qt {

/// A window in its frame, and all that stands on it, tied to their models.
class BoundWindow {
public:
    /// All must outlive this.
    BoundWindow(controls::Window& model, QWidget& widget, Codec const& codec, Units const& units,
                WindowBinder::Manners manners);
    BoundWindow(BoundWindow const&) = delete;
    BoundWindow& operator=(BoundWindow const&) = delete;

    /// A request to close the window presses this button.
    void close_by(controls::Button& button);
    /// A window that is hidden costs nothing; it is made equal to its form as it comes up.
    void show();

    Bindings parts;
    /// What else there is to show.
    std::function<void()> show_more = [] {};

private:
    controls::Window& model_;
    QWidget& widget_;
    ModalWait wait_;
    WindowBinder frame_;
};

} // namespace qt
