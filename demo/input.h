#pragma once

#include <QPoint>
#include <QString>

class QWidget;

/// What a keyboard and a mouse do to a widget.
namespace demo::input {

void send_letter(QWidget& widget, QChar letter);
void send_key(QWidget& widget, int key, Qt::KeyboardModifiers held = {});
void send_click(QWidget& widget, QPoint place);
void send_double_click(QWidget& widget, QPoint place);

} // namespace demo::input
