#include "demo/stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScreen>

#include <algorithm>
#include <stdexcept>
#include <thread>
#include <utility>

namespace demo {

namespace {

constexpr std::chrono::milliseconds frame(20);
constexpr std::chrono::milliseconds key_time(60);

void send_key(QWidget& widget, QChar letter)
{
    for (auto const type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
        QApplication::sendEvent(&widget, &event);
    }
}

void send_click(QWidget& widget, QPoint place)
{
    auto const global = widget.mapToGlobal(place);
    for (auto const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        auto const held =
            type == QEvent::MouseButtonPress ? Qt::MouseButtons(Qt::LeftButton) : Qt::NoButton;
        QMouseEvent event(type, place, global, Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

} // namespace

Stage::Stage(Pace pace, QString pictures)
    : pace_(pace), pictures_(std::move(pictures)), codec_(1252),
      units_(QApplication::primaryScreen()->logicalDotsPerInch())
{
    QDir().mkpath(pictures_);
}

void Stage::show(sim::Peer& peer, QPoint corner)
{
    peer.boxes.answer_all();
    auto& frmMain = peer.frmMain();
    frmMain.window.place(units_.twips(corner.x()), units_.twips(corner.y()));
    shells_.emplace(&peer, std::make_unique<qt::Shell>(peer.forms(), codec_, units_));
    show_all();
}

void Stage::show_all()
{
    for (auto const& [peer, shell] : shells_) {
        shell->show();
    }
    QApplication::processEvents();
}

void Stage::pass(std::chrono::milliseconds time)
{
    if (pace_ == Pace::at_once) {
        office.run_for(time);
        show_all();
        return;
    }
    for (; time.count() > 0; time -= frame) {
        office.run_for(std::min(time, frame));
        show_all();
        std::this_thread::sleep_for(frame);
    }
}

QWidget& Stage::window(sim::Peer& peer, QString const& name)
{
    if (name == QStringLiteral("frmMain")) {
        return shells_.at(&peer)->main_window();
    }
    return shells_.at(&peer)->popup_window(name);
}

template <typename Widget>
Widget& Stage::control(sim::Peer& peer, QString const& window_name, QString const& name)
{
    auto* const found = window(peer, window_name).findChild<Widget*>(name);
    if (found == nullptr) {
        throw std::logic_error("no " + name.toStdString() + " on " + window_name.toStdString());
    }
    return *found;
}

void Stage::pick(sim::Peer& peer, std::string_view name)
{
    auto& list = control<QListWidget>(peer, QStringLiteral("frmMain"), QStringLiteral("allusers"));
    auto const found = list.findItems(codec_.to_unicode(name), Qt::MatchExactly);
    if (found.isEmpty()) {
        throw std::logic_error(std::string(name) + " is not on the list");
    }
    send_click(*list.viewport(), list.visualItemRect(found.constFirst()).center());
    show_all();
}

void Stage::type(sim::Peer& peer, QString const& window_name, QString const& box,
                 QString const& text)
{
    auto& edit = control<QPlainTextEdit>(peer, window_name, box);
    for (QChar const letter : text) {
        send_key(edit, letter);
        show_all();
        if (pace_ == Pace::as_seen) {
            pass(key_time);
        }
    }
}

void Stage::press(sim::Peer& peer, QString const& window_name, QString const& button)
{
    auto& widget = control<QAbstractButton>(peer, window_name, button);
    send_click(widget, widget.rect().center());
    show_all();
}

QString Stage::picture(sim::Peer& peer, QString const& window_name, QString const& name)
{
    auto const file = pictures_ + QLatin1Char('/') + name + QStringLiteral(".png");
    show_all();
    window(peer, window_name).grab().save(file);
    return file;
}

} // namespace demo
