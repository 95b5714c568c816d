#include "bench/capacity/crowd.h"

#include "network/wire.h"

#include <algorithm>
#include <array>
#include <string>

namespace capacity {

using namespace std::chrono_literals;

namespace {

/// Rows that a program holds itself; the others wait in the segment's record.
constexpr std::size_t held_rows = 64;

constexpr std::array first_names{
    "Anna",  "Boris", "Clara", "David", "Emma",   "Felix",  "Greta", "Henry", "Ida",
    "Jonas", "Klara", "Leon",  "Mara",  "Nils",   "Olga",   "Paul",  "Quinn", "Rosa",
    "Simon", "Tilda", "Udo",   "Vera",  "Walter", "Yvonne", "Zoe",
};
constexpr std::array last_names{
    "Adler", "Berger", "Conrad", "Dietz",  "Engel", "Falk",  "Gruber", "Hahn",  "Imhof",
    "Jung",  "Keller", "Lang",   "Maurer", "Noll",  "Ott",   "Peters", "Quast", "Ritter",
    "Stern", "Thoma",  "Ulrich", "Vogt",   "Weiss", "Young", "Zander",
};

struct Desk {
    std::string host;
    std::string user;
    std::string name;
};

/// The names differ from their first letters on, as names do.
Desk desk(int number)
{
    auto const place = static_cast<std::size_t>(number);
    std::string const first = first_names.at(place % first_names.size());
    std::string const last = last_names.at(place / first_names.size());
    return {"ROOM" + std::to_string(1001 + number), first + last.front(), first + " " + last};
}

std::vector<std::string> directory(int people)
{
    auto const letters = text::CharacterSet::western();
    std::vector<std::string> rows;
    for (int number = 0; number < people; ++number) {
        auto const [host, user, name] = desk(number);
        rows.push_back(letters.upper("[" + host + "\\" + user + "]=" + name));
    }
    return rows;
}

} // namespace

Crowd::Crowd(Terms const& terms, sim::Setup setup)
    : Scene(terms), office(terms.seed), full_files_(static_cast<std::size_t>(terms.people))
{
    if (terms.checks) {
        setup.settings.emplace_back("AUTOCHECKUSERS", "1");
    }
    office.segment.faults.loss = terms.loss;
    auto const rows = directory(terms.acquainted);
    for (int number = 0; number < terms.people; ++number) {
        auto const [host, user, name] = desk(number);
        auto& peer = office.host(host, user);
        peer.most_rows = held_rows;
        setup.users = number < terms.acquainted ? rows : std::vector<std::string>();
        peer.prepare(name, setup);
    }
}

void Crowd::start_at(sim::Duration moment, int number)
{
    office.scheduler.at(moment, [&one = peer(number)] { one.start(); });
}

void Crowd::find_others_after(sim::Duration delay, int number)
{
    constexpr std::size_t entry = 2;
    office.scheduler.after(
        delay, [&one = peer(number)] { one.person.choose(one.forms().menuform.toolsmenu, entry); });
}

void Crowd::meet()
{
    int side = 0;
    for (sim::Peer& each : office.peers()) {
        each.host.side = ++side;
        each.start();
    }
    office.settle();
    office.segment.heal();
    find_others_after(1s, 0);
    office.run_for(1s);
    office.settle();
    office.run_for(10s); // The watch has put its title into the status lines.
    office.segment.forget();
}

void Crowd::set_count(int number, int ticks)
{
    peer(number).frmMain().usercount = std::to_string(ticks);
}

std::vector<std::size_t> Crowd::queues()
{
    std::vector<std::size_t> rows;
    for (sim::Peer& each : office.peers()) {
        rows.push_back(each.queued());
    }
    return rows;
}

std::vector<int> Crowd::lists()
{
    std::vector<int> names;
    for (sim::Peer& each : office.peers()) {
        names.push_back(each.frmMain().allusers.count());
    }
    return names;
}

int Crowd::complete_directories()
{
    int complete = 0;
    std::size_t number = 0;
    for (sim::Peer& each : office.peers()) {
        complete += each.frmMain().userlist.count() == people() && has_full_file(number) ? 1 : 0;
        ++number;
    }
    return complete;
}

bool Crowd::has_full_file(std::size_t number)
{
    if (!full_files_[number]) {
        auto const file = office.peers()[number].files.content("users.txt");
        full_files_[number] = std::ranges::count(file, '\n') == people();
    }
    return full_files_[number];
}

bool Crowd::quiet()
{
    return office.segment.in_flight() == 0 &&
           std::ranges::all_of(office.peers(), [](sim::Peer& each) {
               return each.running() && each.queued() == 0;
           });
}

Scene::Sent Crowd::sent()
{
    auto const& all = office.segment.sent();
    auto const announcements = std::ranges::count_if(
        all, [](auto const& each) { return each.bytes->starts_with(network::wire::announce); });
    return {all.size(), static_cast<std::size_t>(announcements)};
}

std::size_t Crowd::shown()
{
    std::size_t sounds = 0;
    for (sim::Peer& each : office.peers()) {
        sounds += each.sound.played.size();
    }
    return sounds;
}

} // namespace capacity
