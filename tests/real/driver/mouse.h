#pragma once

#include <QAction>
#include <QJsonObject>
#include <QMenu>
#include <QWidget>

namespace driver {

/// Presses and lets go a mouse button on the middle of the control, on its place "at", on the row
/// "row" of a list or on the tab "tab"; "button" and "modifiers" as asked for, "double" twice.
void click(QWidget& widget, QJsonObject const& command);

/// A plain click between whose press and release nothing else happens.
void click_at_once(QWidget& widget);

/// Where on the screen `click` would come down.
QPoint spot_on_screen(QWidget& widget, QJsonObject const& command);

/// Drags with the left button from the control's place "from" by "by".
void drag(QWidget& widget, QJsonObject const& command);

/// Chooses an entry of a menu: with the mouse when the menu is open.
void choose(QMenu& menu, QAction& action);

/// Sets an action off that has no place on the screen.
void set_off(QAction& action);

} // namespace driver
