#include "reading.h"

#include "refusal.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextEdit>

namespace driver {
namespace {

void add_list(QJsonObject& out, QAbstractItemView const& view)
{
    auto const* const model = view.model();
    if (!model) {
        return;
    }
    QJsonArray rows;
    QJsonArray selected;
    auto const* const selection = view.selectionModel();
    auto const root = view.rootIndex();
    for (int row = 0; row < model->rowCount(root); ++row) {
        QJsonArray cells;
        for (int column = 0; column < model->columnCount(root); ++column) {
            cells.append(model->index(row, column, root).data().toString());
        }
        rows.append(cells.size() == 1 ? cells.first() : QJsonValue(cells));
        if (selection && selection->isSelected(model->index(row, 0, root))) {
            selected.append(row);
        }
    }
    out["rows"] = rows;
    out["selected"] = selected;
    out["current"] = view.currentIndex().row();
}

void add_text_box(QJsonObject& out, QString const& text, QTextCursor const& cursor, bool read_only)
{
    out["text"] = text;
    out["readonly"] = read_only;
    out["caret"] = cursor.position();
    out["marked"] = cursor.selectedText();
}

/// The text cut where the colour of its letters changes.
QJsonArray coloured_runs(QTextDocument const& document)
{
    QJsonArray runs;
    for (auto block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            auto const fragment = part.fragment();
            auto const colour = fragment.charFormat().foreground().color().name();
            runs.append(QJsonArray({colour, fragment.text()}));
        }
    }
    return runs;
}

void add_tabs(QJsonObject& out, QTabWidget const& tabs)
{
    QJsonArray titles;
    for (int page = 0; page < tabs.count(); ++page) {
        titles.append(tabs.tabText(page));
    }
    out["tabs"] = titles;
    out["tab"] = tabs.currentIndex();
}

void add_button(QJsonObject& out, QAbstractButton const& button)
{
    out["text"] = button.text();
    out["checkable"] = button.isCheckable();
    out["checked"] = button.isChecked();
}

void add_contents(QJsonObject& out, QWidget const& widget)
{
    if (auto const* const label = qobject_cast<QLabel const*>(&widget)) {
        out["text"] = label->text();
    } else if (auto const* const button = qobject_cast<QAbstractButton const*>(&widget)) {
        add_button(out, *button);
    } else if (auto const* const line = qobject_cast<QLineEdit const*>(&widget)) {
        out["text"] = line->text();
        out["readonly"] = line->isReadOnly();
    } else if (auto const* const plain = qobject_cast<QPlainTextEdit const*>(&widget)) {
        add_text_box(out, plain->toPlainText(), plain->textCursor(), plain->isReadOnly());
    } else if (auto const* const rich = qobject_cast<QTextEdit const*>(&widget)) {
        add_text_box(out, rich->toPlainText(), rich->textCursor(), rich->isReadOnly());
        out["runs"] = coloured_runs(*rich->document());
    } else if (auto const* const view = qobject_cast<QAbstractItemView const*>(&widget)) {
        add_list(out, *view);
    } else if (auto const* const bar = qobject_cast<QProgressBar const*>(&widget)) {
        out["value"] = bar->value();
    } else if (auto const* const tabs = qobject_cast<QTabWidget const*>(&widget)) {
        add_tabs(out, *tabs);
    } else if (auto const* const combo = qobject_cast<QComboBox const*>(&widget)) {
        out["text"] = combo->currentText();
    } else if (auto const* const spin = qobject_cast<QSpinBox const*>(&widget)) {
        out["value"] = spin->value();
    }
}

} // namespace

QJsonObject rectangle(QRect const& rect)
{
    return {{"x", rect.x()}, {"y", rect.y()}, {"width", rect.width()}, {"height", rect.height()}};
}

QJsonObject described(QWidget const& widget)
{
    QJsonObject out{
        {"name", widget.objectName()},
        {"class", widget.metaObject()->className()},
        {"enabled", widget.isEnabled()},
        {"visible", widget.isVisible()},
        {"focus", widget.hasFocus()},
        {"window_focus", widget.window()->focusWidget() == &widget},
        {"tooltip", widget.toolTip()},
        {"accessible", widget.accessibleName()},
        {"geometry", rectangle(widget.geometry())},
        {"place", rectangle({widget.mapToGlobal(QPoint()), widget.size()})},
        {"inside", rectangle({widget.mapTo(widget.window(), QPoint()), widget.size()})},
        {"window_number", static_cast<qint64>(widget.window()->internalWinId())},
        {"font_size", widget.font().pointSizeF()},
    };
    if (widget.isWindow()) {
        out["title"] = widget.windowTitle();
    }
    add_contents(out, widget);
    return out;
}

QJsonObject described_window(QWidget const& window)
{
    return {
        {"name", window.objectName()},
        {"class", window.metaObject()->className()},
        {"title", window.windowTitle()},
        {"visible", window.isVisible()},
        {"active", window.isActiveWindow()},
        {"minimized", window.isMinimized()},
        {"modal", window.isModal()},
        {"topmost", window.windowFlags().testFlag(Qt::WindowStaysOnTopHint)},
        {"frameless", window.windowFlags().testFlag(Qt::FramelessWindowHint)},
        {"geometry", rectangle(window.geometry())},
    };
}

QJsonValue property_of(QWidget const& widget, QString const& name)
{
    auto const value = widget.property(name.toUtf8().constData());
    if (!value.isValid()) {
        throw Refusal("\"" + widget.objectName() + "\" has no property \"" + name + "\"");
    }
    auto const json = QJsonValue::fromVariant(value);
    return json.isNull() ? QJsonValue(value.toString()) : json;
}

QJsonArray entries_of(QMenu const& menu)
{
    QJsonArray entries;
    for (auto const* const action : menu.actions()) {
        QJsonObject entry{
            {"name", action->objectName()},       {"text", action->text()},
            {"separator", action->isSeparator()}, {"visible", action->isVisible()},
            {"enabled", action->isEnabled()},     {"checked", action->isChecked()},
        };
        if (action->menu()) {
            entry["entries"] = entries_of(*action->menu());
        }
        entries.append(entry);
    }
    return entries;
}

QJsonObject described_timer(QTimer const& timer)
{
    return {
        {"active", timer.isActive()},
        {"interval", timer.interval()},
        {"remaining", timer.remainingTime()},
        {"precise", timer.timerType() == Qt::PreciseTimer},
    };
}

} // namespace driver
