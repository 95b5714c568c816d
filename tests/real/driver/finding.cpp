#include "finding.h"

#include "refusal.h"

#include <QApplication>
#include <QJsonArray>
#include <QWindow>

namespace driver {
namespace {

QWidget* child_named(QWidget const& outer, QString const& name)
{
    for (auto* const child : outer.findChildren<QWidget*>(name)) {
        if (child->window() == outer.window()) {
            return child;
        }
    }
    throw Refusal("no control \"" + name + "\" in \"" + outer.objectName() + "\"");
}

QStringList control_path(QJsonValue const& value)
{
    QStringList names;
    if (value.isArray()) {
        for (auto const& name : value.toArray()) {
            names.append(name.toString());
        }
    } else if (!value.toString().isEmpty()) {
        names.append(value.toString());
    }
    return names;
}

} // namespace

QWidget* window_named(QString const& name)
{
    QStringList known;
    for (auto* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == name) {
            return widget;
        }
        known.append(widget->objectName());
    }
    throw Refusal("no window \"" + name + "\" among " + known.join(", "));
}

QWidget* target_of(QJsonObject const& command)
{
    auto* widget = window_named(command.value("window").toString());
    for (auto const& name : control_path(command.value("control"))) {
        widget = child_named(*widget, name);
    }
    return widget;
}

void must_be_usable(QWidget const& widget)
{
    auto const name = "\"" + widget.objectName() + "\"";
    if (!widget.isVisible() || !widget.window()->windowHandle()) {
        throw Refusal(name + " is not on the screen");
    }
    if (!widget.isEnabled()) {
        throw Refusal(name + " is disabled");
    }
    auto const* const box = QApplication::activeModalWidget();
    if (box && box != widget.window()) {
        throw Refusal(name + " stands behind the box \"" + box->windowTitle() + "\"");
    }
}

QAction* action_named(QWidget const& window, QString const& name)
{
    if (auto* const child = window.findChild<QAction*>(name)) {
        return child;
    }
    for (auto* const action : window.actions()) {
        if (action->objectName() == name) {
            return action;
        }
    }
    throw Refusal("no action \"" + name + "\" in \"" + window.objectName() + "\"");
}

QMenu* menu_named(QString const& name)
{
    if (name.isEmpty()) {
        if (auto* const open = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            return open;
        }
        throw Refusal("no menu is open");
    }
    for (auto* const widget : QApplication::allWidgets()) {
        auto* const menu = qobject_cast<QMenu*>(widget);
        if (menu && menu->objectName() == name) {
            return menu;
        }
    }
    throw Refusal("no menu \"" + name + "\"");
}

} // namespace driver
