#pragma once

#include <QJsonObject>
#include <QMenu>
#include <QTimer>
#include <QWidget>

namespace driver {

/// Everything that a person can see of a control, and what a screen reader would say.
QJsonObject described(QWidget const& widget);

/// The same for a window as a whole: name, class, title, place, and how it is shown.
QJsonObject described_window(QWidget const& window);

/// Any property of the control, as text, number, truth value or list.
QJsonValue property_of(QWidget const& widget, QString const& name);

/// The entries of a menu, separators included, with the entries of its sub-menus.
QJsonArray entries_of(QMenu const& menu);

QJsonObject described_timer(QTimer const& timer);

QJsonObject rectangle(QRect const& rect);

} // namespace driver
