#include "demo/input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace demo::input {

namespace {

void press_and_release(QWidget& widget, int key, Qt::KeyboardModifiers held, QString const& text)
{
    for (auto const type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, held, text);
        QApplication::sendEvent(&widget, &event);
    }
}

void send_button(QWidget& widget, QPoint place, QEvent::Type type)
{
    auto const held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

void send_letter(QWidget& widget, QChar letter)
{
    press_and_release(widget, letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
}

void send_key(QWidget& widget, int key, Qt::KeyboardModifiers held)
{
    auto const text = key == Qt::Key_Return ? QStringLiteral("\r") : QString();
    press_and_release(widget, key, held, text);
}

void send_click(QWidget& widget, QPoint place)
{
    send_button(widget, place, QEvent::MouseButtonPress);
    send_button(widget, place, QEvent::MouseButtonRelease);
}

void send_double_click(QWidget& widget, QPoint place)
{
    send_button(widget, place, QEvent::MouseButtonDblClick);
    send_button(widget, place, QEvent::MouseButtonRelease);
}

} // namespace demo::input
