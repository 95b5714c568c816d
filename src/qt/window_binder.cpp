#include "qt/window_binder.h"

#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QWindow>

#include <utility>

namespace qt {

using controls::Window;

WindowBinder::WindowBinder(Window& model, QWidget& widget, Codec const& codec, Units const& units,
                           Manners manners)
    : model_(model), widget_(widget), codec_(codec), units_(units), manners_(manners)
{
    widget.setAttribute(Qt::WA_ShowWithoutActivating, !manners.takes_keyboard);
    widget.installEventFilter(this);
}

void WindowBinder::show()
{
    QScopedValueRollback const guard(showing_, true);
    if (QString const caption = codec_.to_unicode(model_.caption);
        widget_.windowTitle() != caption) {
        widget_.setWindowTitle(caption);
    }
    if (!model_.visible()) {
        show_hidden();
        return;
    }
    show_place();
    show_state();
    show_stacking();
    if (!widget_.isVisible()) {
        widget_.show();
    }
    take_size(); // The frame comes a moment after the window.
    if (shows_ != model_.shows()) {
        shows_ = model_.shows();
        bring_up();
    }
}

void WindowBinder::show_hidden()
{
    if (stays_in_task_bar && shows_ != 0) {
        if (!widget_.isMinimized() || !widget_.isVisible()) {
            widget_.showMinimized();
        }
    } else if (widget_.isVisible()) {
        widget_.hide();
    }
}

void WindowBinder::show_place()
{
    QPoint const wanted(units_.pixels(model_.left), units_.pixels(model_.top));
    if (manners_.knows_its_place && model_.placed && (!placed_ || place_ != wanted)) {
        place_ = wanted;
        placed_ = true;
        widget_.move(wanted);
    }
}

void WindowBinder::show_state()
{
    bool const minimised = model_.state == Window::State::minimised;
    if (widget_.isMinimized() != minimised) {
        widget_.setWindowState(widget_.windowState() ^ Qt::WindowMinimized);
    }
}

void WindowBinder::show_stacking()
{
    if (std::exchange(stacking_, model_.stacking) == model_.stacking) {
        return;
    }
    bool const on_top = model_.stacking == Window::Stacking::on_top;
    widget_.winId(); // So that there is a window to tell.
    // The usual way would take the window off the screen and bring it back somewhere else.
    widget_.overrideWindowFlags(widget_.windowFlags().setFlag(Qt::WindowStaysOnTopHint, on_top));
    widget_.windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on_top);
    if (model_.stacking == Window::Stacking::at_the_bottom && widget_.isVisible()) {
        widget_.lower();
    }
}

void WindowBinder::bring_up()
{
    if (widget_.isMinimized()) {
        return;
    }
    widget_.raise();
    if (manners_.takes_keyboard) {
        widget_.activateWindow();
    }
}

bool WindowBinder::eventFilter(QObject* widget, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Close:
        event->ignore();
        if (close_asked) {
            close_asked();
        }
        return true;
    case QEvent::Move:
        moved();
        take_size();
        break;
    case QEvent::Resize:
        take_size();
        break;
    case QEvent::WindowStateChange:
        state_changed();
        break;
    case QEvent::WindowBlocked:
        behind_box_ = widget_.isActiveWindow();
        break;
    case QEvent::WindowActivate:
        activated();
        break;
    default:
        break;
    }
    return QObject::eventFilter(widget, event);
}

void WindowBinder::moved()
{
    bool const seen = widget_.isVisible() && !widget_.isMinimized();
    if (manners_.knows_its_place && seen && !showing_ && widget_.pos() != place_) {
        place_ = widget_.pos();
        placed_ = true;
        model_.place(units_.twips(place_.x()), units_.twips(place_.y()));
        model_.moved.run();
    }
}

void WindowBinder::activated()
{
    // Coming back from a box, the window goes on where it was.
    if (!std::exchange(behind_box_, false)) {
        model_.activated.run();
    }
}

void WindowBinder::state_changed()
{
    if (model_.visible()) {
        model_.state = widget_.isMinimized() ? Window::State::minimised : Window::State::normal;
    } else if (!showing_ && !widget_.isMinimized() && brought_back) {
        brought_back();
    }
}

void WindowBinder::take_size()
{
    if (manners_.knows_its_place && widget_.isVisible() && !widget_.isMinimized()) {
        model_.width = units_.twips(widget_.frameGeometry().width());
        model_.height = units_.twips(widget_.frameGeometry().height());
    }
}

} // namespace qt
