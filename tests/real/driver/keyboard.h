#pragma once

#include <QJsonObject>
#include <QWidget>

namespace driver {

/// The modifier keys that a command holds down: "ctrl", "shift", "alt" in its "modifiers".
Qt::KeyboardModifiers modifiers_of(QJsonObject const& command);

/// Presses and lets go one key, by the toolkit's name for it ("Return", "F1").
void press_key(QWidget& widget, QJsonObject const& command);

/// Types a text key by key into the control that has the keyboard in its window.
void type_text(QWidget& widget, QString const& text);

} // namespace driver
