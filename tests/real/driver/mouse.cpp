#include "mouse.h"

#include "finding.h"
#include "keyboard.h"
#include "later.h"
#include "refusal.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QJsonArray>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

namespace driver {
namespace {

// Milliseconds on the mouse's clock: two clicks are a double click only where that is asked for.
constexpr int within_a_click = 5;
constexpr int between_clicks = 2000;
int mouse_clock = 0;
Qt::MouseButtons buttons_down;

Qt::MouseButton button_of(QJsonObject const& command)
{
    auto const name = command.value("button").toString("left");
    if (name == "left") {
        return Qt::LeftButton;
    }
    if (name == "right") {
        return Qt::RightButton;
    }
    throw Refusal("unknown mouse button " + name);
}

QPoint point_of(QJsonValue const& value)
{
    auto const pair = value.toArray();
    return {pair.at(0).toInt(), pair.at(1).toInt()};
}

/// A place inside the window; its parts may move before the event comes, the place stays.
struct Spot {
    QPointer<QWindow> window;
    QPoint place;
};

/// The place of a point of the control, which must be on top there.
Spot spot(QWidget& widget, QPoint point)
{
    auto* const top = widget.window();
    auto const place = widget.mapTo(top, point);
    auto const* const hit = top->childAt(place);
    if (hit && hit != &widget && !widget.isAncestorOf(hit) && !hit->isAncestorOf(&widget)) {
        throw Refusal("\"" + widget.objectName() + "\" is covered by \"" + hit->objectName() +
                      "\"");
    }
    if (!top->rect().contains(place)) {
        throw Refusal("\"" + widget.objectName() + "\" reaches out of its window there");
    }
    return {top->windowHandle(), place};
}

/// The row's first cell that is on show: a hidden column has none.
QModelIndex cell_of_row(QAbstractItemView const& view, int row)
{
    auto const& model = *view.model();
    auto const root = view.rootIndex();
    for (int column = 0; column < model.columnCount(root); ++column) {
        auto const cell = model.index(row, column, root);
        if (view.visualRect(cell).width() > 0) {
            return cell;
        }
    }
    return model.index(row, 0, root);
}

Spot spot_of_row(QAbstractItemView& view, int row)
{
    auto const index = cell_of_row(view, row);
    if (!index.isValid()) {
        throw Refusal("\"" + view.objectName() + "\" has no row " + QString::number(row));
    }
    view.scrollTo(index);
    auto const rect = view.visualRect(index).intersected(view.viewport()->rect());
    return spot(*view.viewport(), rect.center());
}

Spot spot_of_tab(QTabWidget& tabs, int tab)
{
    return spot(*tabs.tabBar(), tabs.tabBar()->tabRect(tab).center());
}

Spot spot_asked(QWidget& widget, QJsonObject const& command)
{
    if (auto* const view = qobject_cast<QAbstractItemView*>(&widget);
        view && command.contains("row")) {
        return spot_of_row(*view, command.value("row").toInt());
    }
    if (auto* const tabs = qobject_cast<QTabWidget*>(&widget); tabs && command.contains("tab")) {
        return spot_of_tab(*tabs, command.value("tab").toInt());
    }
    if (command.contains("at")) {
        return spot(widget, point_of(command.value("at")));
    }
    // A wide check box answers to its box and label only, which stand at its left edge.
    auto const middle = widget.rect().center();
    return spot(widget, qobject_cast<QCheckBox*>(&widget) ? QPoint(10, middle.y()) : middle);
}

// As with keys, the entry point below QTest, which leaves the event loop alone.
void hand_in(Spot const& at, QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers held)
{
    if (!at.window) {
        return;
    }
    auto const released = type == QEvent::MouseButtonRelease;
    buttons_down.setFlag(button, !released && button != Qt::NoButton);
    auto const global = at.window->mapToGlobal(at.place);
    mouse_clock += released ? between_clicks : within_a_click;
    qt_handleMouseEvent(at.window, at.place, global, buttons_down, button, type, held, mouse_clock);
}

void post_mouse(Spot const& at, QEvent::Type type, Qt::MouseButton button,
                Qt::KeyboardModifiers held)
{
    later([=] { hand_in(at, type, button, held); });
}

void press_and_release(Spot const& at, Qt::MouseButton button, Qt::KeyboardModifiers held)
{
    post_mouse(at, QEvent::MouseButtonPress, button, held);
    post_mouse(at, QEvent::MouseButtonRelease, button, held);
}

} // namespace

void click(QWidget& widget, QJsonObject const& command)
{
    must_be_usable(widget);
    auto const at = spot_asked(widget, command);
    auto const button = button_of(command);
    auto const held = modifiers_of(command);
    press_and_release(at, button, held);
    if (command.value("double").toBool()) {
        later([] { mouse_clock -= between_clicks - within_a_click; });
        press_and_release(at, button, held);
    }
}

void click_at_once(QWidget& widget)
{
    must_be_usable(widget);
    auto const at = spot_asked(widget, {});
    hand_in(at, QEvent::MouseButtonPress, Qt::LeftButton, {});
    hand_in(at, QEvent::MouseButtonRelease, Qt::LeftButton, {});
}

QPoint spot_on_screen(QWidget& widget, QJsonObject const& command)
{
    must_be_usable(widget);
    auto const at = spot_asked(widget, command);
    return at.window->mapToGlobal(at.place);
}

void drag(QWidget& widget, QJsonObject const& command)
{
    must_be_usable(widget);
    auto at = spot(widget, point_of(command.value("from")));
    auto const start = at.place;
    auto const by = point_of(command.value("by"));
    auto const held = modifiers_of(command);
    post_mouse(at, QEvent::MouseButtonPress, Qt::LeftButton, held);
    constexpr int steps = 8;
    for (int step = 1; step <= steps; ++step) {
        at.place = start + by * step / steps;
        post_mouse(at, QEvent::MouseMove, Qt::NoButton, held);
    }
    post_mouse(at, QEvent::MouseButtonRelease, Qt::LeftButton, held);
}

void choose(QMenu& menu, QAction& action)
{
    if (!action.isVisible() || !action.isEnabled()) {
        throw Refusal("the entry \"" + action.text() + "\" cannot be chosen");
    }
    if (!menu.isVisible()) {
        set_off(action);
        return;
    }
    press_and_release({menu.windowHandle(), menu.actionGeometry(&action).center()}, Qt::LeftButton,
                      {});
}

void set_off(QAction& action)
{
    later([alive = QPointer(&action)] {
        if (alive) {
            alive->trigger();
        }
    });
}

} // namespace driver
