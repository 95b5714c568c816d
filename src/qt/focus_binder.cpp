#include "qt/focus_binder.h"

#include <QFocusEvent>
#include <QScopedValueRollback>

#include <utility>

namespace qt {

namespace {

/// Whether a person, or Tab, has moved the focus here. A window that comes back to the front and a
/// menu that closes bring it back to where it was.
bool has_moved(Qt::FocusReason reason)
{
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

} // namespace

FocusBinder::FocusBinder(controls::Focus& model, QWidget& widget)
    : model_(model), widget_(widget), served_(model.requests())
{
    widget.installEventFilter(this);
}

void FocusBinder::show()
{
    if (std::exchange(served_, model_.requests()) != model_.requests()) {
        QScopedValueRollback const guard(giving_, true);
        widget_.setFocus(Qt::OtherFocusReason);
    }
}

bool FocusBinder::eventFilter(QObject* widget, QEvent* event)
{
    auto const* const focus = dynamic_cast<QFocusEvent const*>(event);
    if (focus != nullptr && focus->gotFocus() && !giving_ && has_moved(focus->reason())) {
        model_.got.run();
    }
    return QObject::eventFilter(widget, event);
}

} // namespace qt
