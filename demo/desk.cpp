#include "demo/desk.h"

#include "demo/ending.h"
#include "demo/in_the_way.h"
#include "demo/input.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <exception>

namespace demo {

namespace {

using namespace std::chrono_literals;

constexpr auto key_time = 45ms;
constexpr auto click_time = 350ms;
constexpr auto menu_time = 700ms;
constexpr QPoint beside_main(250, 70);
constexpr QPoint cascade(28, 28);

} // namespace

Desk::Desk(sim::Peer& host, OfficeTime& time, qt::Codec const& codec, Side side)
    : peer(host), time_(time), codec_(codec),
      units_(QApplication::primaryScreen()->logicalDotsPerInch()),
      screen_(QApplication::primaryScreen()->availableGeometry()), boxes_(codec)
{
    auto const others = QApplication::topLevelWidgets();
    shell_ = std::make_unique<qt::Shell>(peer.forms(), codec_, units_);
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (!others.contains(widget)) {
            windows_.insert(widget);
        }
    }
    boxes_.owner = &shell_->main_window();
    peer.boxes.hand_to(boxes_);
    peer.screen.wide = units_.twips(screen_.width());
    peer.screen.high = units_.twips(screen_.height());
    int const margin = screen_.width() / 25;
    corner_ = side == Side::left
                  ? screen_.topLeft() + QPoint(margin, screen_.height() / 12)
                  : screen_.topRight() +
                        QPoint(-margin - shell_->main_window().width(), screen_.height() / 6);
    place_main();
    place_popups();
    show();
}

void Desk::place_main()
{
    peer.frmMain().window.place(units_.twips(corner_.x()), units_.twips(corner_.y()));
}

void Desk::place_popups()
{
    auto place = corner_ + beside_main;
    for (std::size_t slot = 0; slot < peer.forms().popup.size(); ++slot) {
        window(QStringLiteral("popup%1").arg(slot)).move(place);
        place += cascade;
    }
}

void Desk::show()
{
    if (peer.status()) {
        hide_windows(); // The program has ended.
        return;
    }
    shell_->show();
    if (tray_) {
        tray_->show();
    }
    if (!time_.is_seen()) {
        QApplication::processEvents();
    }
}

void Desk::hide_windows()
{
    shell_->freeze();
    for (QWidget* const each : windows_) {
        each->hide();
    }
}

void Desk::use_tray()
{
    if (time_.is_seen()) {
        tray_.emplace(peer, codec_);
        shell_->use_tray(tray_->icon());
    }
}

bool Desk::owns(QWidget const& widget) const
{
    // Boxes and menus are windows of their own, on top of ours.
    for (auto const* each = &widget; each != nullptr; each = each->parentWidget()) {
        if (std::ranges::any_of(windows_, [each](QWidget const* ours) { return ours == each; })) {
            return true;
        }
    }
    return false;
}

QWidget& Desk::window(QString const& name)
{
    auto const found = std::ranges::find_if(
        windows_, [&](QWidget const* widget) { return widget->objectName() == name; });
    if (found == windows_.end()) {
        throw std::logic_error("no window " + name.toStdString());
    }
    return **found;
}

template <typename Widget>
Widget& Desk::find(Control const& control)
{
    auto const& home = window(control.window);
    auto* const found = home.findChild<Widget*>(control.name);
    QWidget const* const modal = QApplication::activeModalWidget();
    bool const behind = modal != nullptr && modal != &home;
    if (found == nullptr || !found->isVisible() || !found->isEnabled() || behind) {
        throw NotAsTold(peer.host.name + ": nobody can reach " + control.name + " on " +
                        control.window);
    }
    return *found;
}

QMenu& Desk::menu(QString const& name)
{
    auto* const found = shell_->main_window().findChild<QMenu*>(name);
    if (found == nullptr) {
        throw std::logic_error("no menu " + name.toStdString());
    }
    return *found;
}

void Desk::start(Story const& meanwhile)
{
    into([this] { peer.start(); }, meanwhile);
    place_main(); // The program has chosen the middle of the screen.
}

void Desk::pick(Control const& list, QString const& row)
{
    auto& widget = find<QListWidget>(list);
    auto const found = widget.findItems(row, Qt::MatchStartsWith);
    if (found.isEmpty()) {
        throw NotAsTold(row.toStdString() + " is not on the list");
    }
    widget.scrollToItem(found.constFirst());
    input::send_click(*widget.viewport(), widget.visualItemRect(found.constFirst()).center());
    show();
    time_.pass(click_time);
}

void Desk::double_click(Control const& table, QString const& text)
{
    auto& widget = find<QTreeWidget>(table);
    for (int column = 0; column < widget.columnCount(); ++column) {
        auto const found = widget.findItems(text, Qt::MatchExactly, column);
        if (!found.isEmpty()) {
            widget.scrollToItem(found.constFirst());
            auto const place = widget.visualItemRect(found.constFirst()).center();
            input::send_click(*widget.viewport(), place);
            input::send_double_click(*widget.viewport(), place);
            show();
            time_.pass(click_time);
            return;
        }
    }
    throw NotAsTold(text.toStdString() + " is not in the table");
}

void Desk::type(Control const& box, QString const& text)
{
    auto& widget = find<QWidget>(box);
    for (QChar const letter : text) {
        input::send_letter(widget, letter);
        show();
        if (time_.is_seen()) {
            time_.pass(key_time);
        }
    }
}

void Desk::press_key(Control const& box, int key, Qt::KeyboardModifiers held)
{
    input::send_key(find<QWidget>(box), key, held);
    show();
    time_.pass(click_time);
}

void Desk::press(Control const& button)
{
    auto& widget = find<QAbstractButton>(button);
    input::send_click(widget, widget.rect().center());
    show();
    time_.pass(click_time);
}

void Desk::open_tab(Control const& tabs, int tab)
{
    auto& bar = *find<QTabWidget>(tabs).tabBar();
    input::send_click(bar, bar.tabRect(tab).center());
    show();
    time_.pass(click_time);
}

void Desk::choose(Control const& button, QString const& name, QString const& entry)
{
    auto& opener = find<QAbstractButton>(button);
    press(button);
    auto& popped_up = menu(name);
    popped_up.move(opener.mapToGlobal(QPoint(0, opener.height())));
    time_.pass(menu_time);
    popped_up.close();
    auto const actions = popped_up.actions();
    auto const found = std::ranges::find_if(actions, [&](QAction const* action) {
        return action->text() == entry && action->isVisible() && action->isEnabled();
    });
    if (found == actions.end()) {
        throw NotAsTold("nobody can choose " + entry.toStdString());
    }
    peer.enter([&] { (*found)->trigger(); });
    show();
}

void Desk::press(Control const& button, Story const& meanwhile)
{
    auto& widget = find<QAbstractButton>(button);
    into([&] { input::send_click(widget, widget.rect().center()); }, meanwhile);
}

void Desk::choose(Control const& button, QString const& name, QString const& entry,
                  Story const& meanwhile)
{
    into([&] { choose(button, name, entry); }, meanwhile);
}

void Desk::into(Story const& opening, Story const& meanwhile)
{
    QWidget const* const before = QApplication::activeModalWidget();
    bool reached = false;
    std::exception_ptr failure;
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, &looks, [&] {
        if (QApplication::activeModalWidget() == before || std::exchange(reached, true)) {
            return;
        }
        try {
            show();
            time_.pass(click_time);
            meanwhile();
        } catch (...) {
            failure = std::current_exception(); // None may fly through a loop of the toolkit.
        }
        cancel_all_before(before);
    });
    looks.start(0);
    opening();
    looks.stop();
    show();
    if (failure) {
        std::rethrow_exception(failure);
    }
    if (!reached) {
        throw NotAsTold(peer.host.name + ": nothing has come up");
    }
    time_.pass(click_time);
}

void Desk::fill_box(QString const& text)
{
    auto* const edit = in_the_way().findChild<QLineEdit*>();
    if (edit == nullptr) {
        throw NotAsTold("the box asks for nothing");
    }
    edit->selectAll();
    for (QChar const letter : text) {
        input::send_letter(*edit, letter);
        if (time_.is_seen()) {
            time_.pass(key_time);
        }
    }
}

void Desk::answer_box(QString const& button)
{
    for (auto* const each : in_the_way().findChildren<QAbstractButton*>()) {
        if (each->text().remove(u'&') == button) {
            input::send_click(*each, each->rect().center());
            return;
        }
    }
    throw NotAsTold("the box has no button " + button.toStdString());
}

void Desk::picture(QString const& name, QString const& file)
{
    show();
    keep(window(name), file);
}

void Desk::picture_of_box(QString const& file)
{
    keep(in_the_way(), file);
}

void Desk::picture_of_menu(QString const& name, QString const& file)
{
    auto& widget = menu(name);
    widget.adjustSize();
    keep(widget, file);
}

void Desk::keep(QWidget& widget, QString const& name) const
{
    if (pictures.isEmpty()) {
        return;
    }
    auto const file = pictures + QLatin1Char('/') + name + QStringLiteral(".png");
    if (!widget.grab().save(file)) {
        throw std::runtime_error("cannot write " + file.toStdString());
    }
}

} // namespace demo
