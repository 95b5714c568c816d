#pragma once

#include "controls/window.h"
#include "qt/codec.h"
#include "qt/units.h"

#include <QObject>
#include <QPoint>
#include <QWidget>

#include <functional>

namespace qt {

/// Ties a window to its model: on or off the screen, its state, place, stacking and caption, and
/// what the desktop does to it.
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

    /// While it is on, a window that has been on the screen and is hidden stays in the task bar,
    /// minimised: where nothing else of the program is to be seen, it would be lost.
    bool stays_in_task_bar = false;
    /// A person has brought that window back from there.
    std::function<void()> brought_back;

protected:
    bool eventFilter(QObject* widget, QEvent* event) override;

private:
    void show_hidden();
    void show_place();
    void show_state();
    void show_stacking();
    void bring_up();
    void moved();
    void activated();
    void state_changed();
    void take_size();

    controls::Window& model_;
    QWidget& widget_;
    Codec const& codec_;
    Units const& units_;
    Manners manners_;
    QPoint place_;
    bool placed_ = false;
    controls::Window::Stacking stacking_ = controls::Window::Stacking::usual;
    bool showing_ = false;
    bool behind_box_ = false; ///< a box has taken the keyboard from it
    unsigned shows_ = 0;
};

} // namespace qt
