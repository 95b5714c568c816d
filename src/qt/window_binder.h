#pragma once

#include "controls/window.h"
#include "qt/codec.h"
#include "qt/units.h"

#include <QObject>
#include <QPoint>
#include <QWidget>

#include <functional>

namespace qt {

/// Ties a window to its model: on or off the screen, its state, place and caption, and what the
/// desktop does to it.
class WindowBinder : public QObject {
public:
    struct Manners {
        bool takes_keyboard = false;  ///< comes up as the active window
        bool knows_its_place = false; ///< otherwise the window system places it
    };

    /// All must outlive the binder.
    WindowBinder(controls::Window& model, QWidget& widget, Codec const& codec, Units const& units,
                 Manners manners);

    /// The caption; then the place, the state and whether the window is seen.
    void show();

    /// The desktop, or its user, asks the window to close. It never closes by itself.
    std::function<void()> close_asked;

protected:
    bool eventFilter(QObject* widget, QEvent* event) override;

private:
    void show_place();
    void show_state();
    void bring_up();
    void moved();

    controls::Window& model_;
    QWidget& widget_;
    Codec const& codec_;
    Units const& units_;
    Manners manners_;
    QPoint place_;
    bool placed_ = false;
    bool showing_ = false;
    unsigned shows_ = 0;
};

} // namespace qt
