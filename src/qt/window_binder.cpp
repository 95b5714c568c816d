#include "qt/window_binder.h"

#include <QCloseEvent>
#include <QScopedValueRollback>

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
        if (widget_.isVisible()) {
            widget_.hide();
        }
        return;
    }
    show_place();
    show_state();
    if (!widget_.isVisible()) {
        widget_.show();
    }
    if (shows_ != model_.shows()) {
        shows_ = model_.shows();
        bring_up();
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
        break;
    case QEvent::WindowStateChange:
        model_.state = widget_.isMinimized() ? Window::State::minimised : Window::State::normal;
        break;
    case QEvent::WindowActivate:
        model_.activated.run();
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

} // namespace qt
