#include "qt/window_face.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace qt {

namespace {

QAccessibleInterface* face_of(QString const& class_name, QObject* object)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    // A window of a kind that the toolkit knows has been asked for by that kind's name before.
    if (class_name != QLatin1String("QWidget") || widget == nullptr || !widget->isWindow()) {
        return nullptr;
    }
    bool const dialog = widget->windowType() == Qt::Dialog;
    return new QAccessibleWidget(widget, dialog ? QAccessible::Dialog : QAccessible::Window);
}

} // namespace

void tell_windows_apart()
{
    QAccessible::installFactory(face_of);
}

} // namespace qt
