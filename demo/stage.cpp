#include "demo/stage.h"

#include "demo/ending.h"

#include "qt/desk_values.h"

#include <QApplication>
#include <QDir>

#include <algorithm>
#include <utility>

namespace demo {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 15s;
constexpr auto between_looks = 50ms;
/// Where nobody waits for it, the story goes on at another time of the day.
constexpr auto between_scenes = 14min + 20s;
/// Of a reader, for each letter told.
constexpr auto letter_time = 18ms;
constexpr auto least_reading_time = 500ms;

/// A working day's morning, where nobody looks at a clock beside.
constexpr text::LocalTime morning{
    .year = 2026, .month = 11, .day = 16, .hour = 8, .minute = 31, .second = 10};

} // namespace

Stage::Stage(Pace pace, QString pictures) : time(office, pace), pictures_(std::move(pictures))
{
    time.stepped = [this] { show_all(); };
    if (!pictures_.isEmpty()) {
        QDir().mkpath(pictures_);
    }
}

void Stage::pass(std::chrono::milliseconds duration)
{
    time.pass(duration);
}

void Stage::pause(std::chrono::milliseconds duration)
{
    if (time.is_seen()) {
        time.pass(duration);
    }
}

void Stage::open_scene(QString const& title)
{
    scene_opened(title);
    if (!time.is_seen()) {
        time.pass(between_scenes);
    }
}

void Stage::tell(QString const& what)
{
    told(what);
    pause(std::max<std::chrono::milliseconds>(least_reading_time, letter_time * what.size()));
}

void Stage::comes_about(QString const& what, std::function<bool()> const& is_so)
{
    auto const end = office.scheduler.now() + patience;
    while (!is_so()) {
        if (office.scheduler.now() >= end) {
            throw NotAsTold("this did not come about: " + what.toStdString());
        }
        time.pass(between_looks);
    }
    tell(what);
}

sim::Peer& Stage::arrives(cast::Member const& member)
{
    auto& peer = office.host(member.computer, member.account);
    set_clock(peer);
    return peer;
}

sim::Peer& Stage::is_at_work(cast::Member const& member, sim::Setup const& setup)
{
    auto& peer = arrives(member);
    peer.boxes.answer_all();
    peer.prepare(bytes(member.name), setup);
    peer.start();
    return peer;
}

sim::Peer* Stage::find(cast::Member const& member)
{
    auto& peers = office.peers();
    auto const found = std::ranges::find_if(
        peers, [&](sim::Peer const& peer) { return peer.host.name == member.computer; });
    return found == peers.end() ? nullptr : &*found;
}

sim::Peer& Stage::peer(cast::Member const& member)
{
    auto* const found = find(member);
    if (found == nullptr) {
        throw std::logic_error(std::string(member.name) + " has not come in");
    }
    return *found;
}

Desk& Stage::show(sim::Peer& peer, Desk::Side side)
{
    auto& desk = desks_.emplace_back(peer, time, codec_, side);
    desk.pictures = pictures_;
    return desk;
}

Desk& Stage::desk(cast::Member const& member)
{
    auto const found = std::ranges::find_if(
        desks_, [&](Desk const& desk) { return desk.peer.host.name == member.computer; });
    if (found == desks_.end()) {
        throw std::logic_error(std::string(member.name) + " has no windows on the screen");
    }
    return *found;
}

Desk* Stage::desk_with(QWidget const& widget)
{
    auto const found =
        std::ranges::find_if(desks_, [&](Desk const& desk) { return desk.owns(widget); });
    return found == desks_.end() ? nullptr : &*found;
}

void Stage::show_all()
{
    for (Desk& desk : desks_) {
        desk.show();
    }
}

void Stage::set_clock(sim::Peer& peer)
{
    sim::Peer const& first = office.peers().front();
    auto const opening = time.is_seen() ? qt::DeskClock().now() : morning;
    peer.clock.set(&first == &peer ? opening : first.clock.now());
}

} // namespace demo
