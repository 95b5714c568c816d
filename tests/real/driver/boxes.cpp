#include "boxes.h"

#include "keyboard.h"
#include "later.h"
#include "mouse.h"
#include "refusal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace driver {
namespace {

QString bare(QString label)
{
    return label.remove('&');
}

QList<QAbstractButton*> buttons_of(QWidget const& box)
{
    QList<QAbstractButton*> shown;
    for (auto* const button : box.findChildren<QAbstractButton*>()) {
        if (!button->text().isEmpty() && !button->isHidden() && button->window() == &box) {
            shown.append(button);
        }
    }
    return shown;
}

QAbstractButton* button_labelled(QWidget const& box, QString const& label)
{
    QStringList known;
    for (auto* const button : buttons_of(box)) {
        if (bare(button->text()).compare(label, Qt::CaseInsensitive) == 0) {
            return button;
        }
        known.append(bare(button->text()));
    }
    throw Refusal("the box offers " + known.join(", ") + ", not " + label);
}

QLineEdit* line_of(QWidget const& box)
{
    for (auto* const line : box.findChildren<QLineEdit*>()) {
        if (line->isVisible() && !line->isReadOnly()) {
            return line;
        }
    }
    return nullptr;
}

QString kind_of(QWidget const& box)
{
    if (qobject_cast<QMessageBox const*>(&box)) {
        return "message";
    }
    if (qobject_cast<QFileDialog const*>(&box)) {
        return "file";
    }
    return line_of(box) ? "input" : "other";
}

QString text_of(QWidget const& box)
{
    if (auto const* const message = qobject_cast<QMessageBox const*>(&box)) {
        return message->text();
    }
    if (auto const* const input = qobject_cast<QInputDialog const*>(&box)) {
        return input->labelText();
    }
    QStringList lines;
    for (auto const* const label : box.findChildren<QLabel*>()) {
        if (!label->isHidden() && !label->text().isEmpty()) {
            lines.append(label->text());
        }
    }
    return lines.join("\n");
}

QJsonArray described_buttons(QWidget const& box)
{
    auto const* const message = qobject_cast<QMessageBox const*>(&box);
    QJsonArray buttons;
    for (auto* const button : buttons_of(box)) {
        QJsonObject entry{{"text", bare(button->text())}, {"name", button->objectName()}};
        if (message) {
            entry["role"] = static_cast<int>(message->buttonRole(button));
            entry["default"] = message->defaultButton() == button;
        }
        buttons.append(entry);
    }
    return buttons;
}

void type_over(QWidget& box, QString const& text)
{
    auto* const line = line_of(box);
    if (!line) {
        throw Refusal("the box \"" + box.windowTitle() + "\" has no line to type into");
    }
    click(*line, {});
    later([alive = QPointer(line), text] {
        if (!alive) {
            return;
        }
        press_key(*alive, {{"key", "A"}, {"modifiers", QJsonArray{"ctrl"}}});
        press_key(*alive, {{"key", "Del"}});
        type_text(*alive, text);
    });
}

/// The box on top; a window of the program's that is shown modally is none.
QWidget* box_on_top()
{
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

} // namespace

bool is_box(QWidget const& window)
{
    return window.isModal() && qobject_cast<QDialog const*>(&window);
}

QJsonObject described_box(QWidget const& box)
{
    QJsonObject out{
        {"kind", kind_of(box)}, {"name", box.objectName()},          {"title", box.windowTitle()},
        {"text", text_of(box)}, {"buttons", described_buttons(box)},
    };
    if (auto const* const message = qobject_cast<QMessageBox const*>(&box)) {
        out["icon"] = static_cast<int>(message->icon());
        out["details"] = message->informativeText();
    }
    if (auto const* const line = line_of(box)) {
        out["default"] = line->text();
    }
    return out;
}

QJsonObject open_box()
{
    auto const* const box = box_on_top();
    return box ? described_box(*box) : QJsonObject();
}

void answer_box(QJsonObject const& command)
{
    auto* const box = box_on_top();
    if (!box) {
        throw Refusal("no box is open");
    }
    auto* const button = button_labelled(*box, command.value("button").toString());
    if (command.contains("text")) {
        type_over(*box, command.value("text").toString());
    }
    // One turn of the loop later still, so that the press comes behind the last key.
    later([alive = QPointer(button)] {
        later([alive] {
            if (alive) {
                // A window that came up between the two would take the focus, and lift the button.
                click_at_once(*alive);
            }
        });
    });
}

} // namespace driver
