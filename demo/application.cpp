#include "demo/application.h"

#include <QEvent>

namespace demo {

namespace {

bool is_input(QEvent const& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

bool ends_the_story(QObject const& receiver, QEvent const& event)
{
    return event.type() == QEvent::Close ||
           receiver.objectName() == QLatin1String(main_window::close.name);
}

} // namespace

bool Application::notify(QObject* receiver, QEvent* event)
{
    auto* const widget = qobject_cast<QWidget*>(receiver);
    Desk* const desk = stage != nullptr && widget != nullptr && is_input(*event)
                           ? stage->desk_with(*widget)
                           : nullptr;
    if (desk == nullptr) {
        return QApplication::notify(receiver, event);
    }
    if (event->spontaneous()) {
        touched();
        if (story_plays && !ends_the_story(*receiver, *event)) {
            return true;
        }
    }
    bool done = false;
    desk->peer.enter([&] { done = QApplication::notify(receiver, event); });
    return done;
}

} // namespace demo
