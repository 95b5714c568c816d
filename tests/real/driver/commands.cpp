#include "commands.h"

#include "boxes.h"
#include "finding.h"
#include "keyboard.h"
#include "later.h"
#include "mouse.h"
#include "objects.h"
#include "reading.h"
#include "refusal.h"

#include <QApplication>
#include <QJsonArray>
#include <QPixmap>

#include <chrono>
#include <map>
#include <thread>

namespace driver {
namespace {

QJsonObject windows(QJsonObject const&)
{
    QJsonArray all;
    for (auto const* const window : QApplication::topLevelWidgets()) {
        all.append(described_window(*window));
    }
    return {{"windows", all}};
}

QJsonObject read(QJsonObject const& command)
{
    auto const& widget = *target_of(command);
    if (command.contains("property")) {
        return {{"value", property_of(widget, command.value("property").toString())}};
    }
    auto out = described(widget);
    if (widget.isWindow()) {
        out["window"] = described_window(widget);
    }
    return out;
}

QJsonObject controls(QJsonObject const& command)
{
    QJsonArray all;
    for (auto const* const child : target_of(command)->findChildren<QWidget*>()) {
        if (!child->objectName().isEmpty()) {
            all.append(described(*child));
        }
    }
    return {{"controls", all}};
}

QJsonObject click_on(QJsonObject const& command)
{
    click(*target_of(command), command);
    return {};
}

QJsonObject spot(QJsonObject const& command)
{
    auto const place = spot_on_screen(*target_of(command), command);
    return {{"x", place.x()}, {"y", place.y()}};
}

QJsonObject drag_by(QJsonObject const& command)
{
    drag(*target_of(command), command);
    return {};
}

QJsonObject press(QJsonObject const& command)
{
    press_key(*target_of(command), command);
    return {};
}

QJsonObject type(QJsonObject const& command)
{
    type_text(*target_of(command), command.value("text").toString());
    return {};
}

QJsonObject action(QJsonObject const& command)
{
    set_off(*action_named(*target_of(command), command.value("action").toString()));
    return {};
}

QJsonObject box(QJsonObject const&)
{
    return {{"box", open_box()}};
}

QJsonObject answer(QJsonObject const& command)
{
    answer_box(command);
    return {};
}

QJsonObject grab(QJsonObject const& command)
{
    auto const path = command.value("path").toString();
    if (!target_of(command)->grab().save(path, "PNG")) {
        throw Refusal("the picture " + path + " cannot be written");
    }
    return {};
}

QJsonObject menu(QJsonObject const& command)
{
    return {{"entries", entries_of(*menu_named(command.value("menu").toString()))}};
}

QJsonObject choose_entry(QJsonObject const& command)
{
    auto* const menu = menu_named(command.value("menu").toString());
    auto const wanted = command.value("entry").toString();
    for (auto* const entry : menu->actions()) {
        if (entry->objectName() == wanted || entry->text().remove('&') == wanted) {
            choose(*menu, *entry);
            return {};
        }
    }
    throw Refusal("the menu has no entry " + wanted);
}

QJsonObject timer(QJsonObject const& command)
{
    auto const name = command.value("timer").toString();
    auto const found = timers_named(name);
    if (found.size() != 1) {
        throw Refusal(QString("%1 timers are called %2").arg(found.size()).arg(name));
    }
    return described_timer(*found.first());
}

/// The window's thread stands still, as when it is busy with something else.
QJsonObject stall(QJsonObject const& command)
{
    later([pause = std::chrono::milliseconds(command.value("ms").toInt())] {
        std::this_thread::sleep_for(pause);
    });
    return {};
}

QJsonObject state(QJsonObject const&)
{
    return {
        {"not_begun", not_begun()},
        {"unfinished", unfinished()},
        {"modal", QApplication::activeModalWidget() != nullptr},
        {"refused", QJsonArray::fromStringList(late_refusals())},
        {"platform", QGuiApplication::platformName()},
    };
}

} // namespace

QJsonObject obey(QJsonObject const& command)
{
    static std::map<QString, QJsonObject (*)(QJsonObject const&)> const known{
        {"windows", windows}, {"read", read},     {"controls", controls},   {"click", click_on},
        {"drag", drag_by},    {"press", press},   {"type", type},           {"action", action},
        {"box", box},         {"answer", answer}, {"grab", grab},           {"menu", menu},
        {"timer", timer},     {"stall", stall},   {"choose", choose_entry}, {"state", state},
        {"spot", spot},
    };
    auto const found = known.find(command.value("do").toString());
    if (found == known.end()) {
        throw Refusal("unknown command " + command.value("do").toString());
    }
    return found->second(command);
}

} // namespace driver
