#pragma once

#include <QAction>
#include <QJsonObject>
#include <QMenu>
#include <QWidget>

namespace driver {

/// The top-level window of that object name, shown or hidden. Refuses when there is none.
QWidget* window_named(QString const& name);

/// What a command aims at: the window "window" and in it the control "control", a name or a list
/// of names from the outside in, letter by letter. Without a control the window itself.
QWidget* target_of(QJsonObject const& command);

/// Refuses what a person could not click or type into at this moment.
void must_be_usable(QWidget const& widget);

/// The action of that object name in a window or its menus; hidden commands are such actions.
QAction* action_named(QWidget const& window, QString const& name);

/// A menu by object name, or the one that is open when the name is empty.
QMenu* menu_named(QString const& name);

} // namespace driver
