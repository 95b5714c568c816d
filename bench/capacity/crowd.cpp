#include "bench/capacity/crowd.h"

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

/// How long a point stands for all that follows, at this time of a course.
sim::Duration until_next_point(sim::Duration now)
{
    return now < 10min ? 2s : now < 1h ? 10s : 1min;
}

} // namespace

double seconds(sim::Duration time)
{
    return std::chrono::duration<double>(time).count();
}

Crowd::Crowd(int people, std::uint64_t seed, Known known, sim::Setup setup)
    : office(seed), chance(seed + 1), people_(people), full_files_(static_cast<std::size_t>(people))
{
    if (known == Known::all) {
        setup.users = directory(people);
    }
    for (int number = 0; number < people; ++number) {
        auto const [host, user, name] = desk(number);
        auto& peer = office.host(host, user);
        peer.most_rows = held_rows;
        peer.prepare(name, setup);
    }
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
    find_others(office.peers().front());
    office.settle();
    office.run_for(10s); // The watch has put its title into the status lines.
    office.segment.forget();
}

void Crowd::find_others(sim::Peer& peer)
{
    constexpr std::size_t entry = 2;
    peer.person.choose(peer.forms().menuform.toolsmenu, entry);
}

int Crowd::complete_lists()
{
    return static_cast<int>(std::ranges::count_if(office.peers(), [this](sim::Peer& each) {
        return each.frmMain().allusers.count() == people_;
    }));
}

int Crowd::complete_directories()
{
    int complete = 0;
    std::size_t number = 0;
    for (sim::Peer& each : office.peers()) {
        complete += each.frmMain().userlist.count() == people_ && has_full_file(number) ? 1 : 0;
        ++number;
    }
    return complete;
}

bool Crowd::has_full_file(std::size_t number)
{
    if (!full_files_[number]) {
        auto const file = office.peers()[number].files.content("users.txt");
        full_files_[number] = std::ranges::count(file, '\n') == people_;
    }
    return full_files_[number];
}

int Crowd::missing_names()
{
    int missing = 0;
    for (sim::Peer& each : office.peers()) {
        missing += people_ - each.frmMain().allusers.count();
    }
    return missing;
}

bool Crowd::quiet()
{
    return office.segment.in_flight() == 0 &&
           std::ranges::all_of(office.peers(), [](sim::Peer& each) {
               return each.running() && each.queued() == 0;
           });
}

void Crowd::point(std::ostream& out)
{
    std::vector<std::size_t> queues;
    for (sim::Peer& each : office.peers()) {
        queues.push_back(each.queued());
    }
    std::ranges::sort(queues);
    out << "point," << seconds(office.scheduler.now()) << ',' << queues[queues.size() / 2] << ','
        << queues.back() << ',' << complete_lists() << ',' << complete_directories() << '\n';
}

std::size_t Crowd::shown()
{
    std::size_t sounds = 0;
    for (sim::Peer& each : office.peers()) {
        sounds += each.sound.played.size();
    }
    return sounds;
}

Course follow(Crowd& crowd, sim::Duration limit, std::ostream* points)
{
    auto const& now = crowd.office.scheduler;
    Course course;
    auto const keep = [&](double& since, bool complete) {
        since = !complete ? -1 : since < 0 ? seconds(now.now()) : since;
    };
    auto const end = now.now() + limit;
    auto next_point = now.now();
    while (now.now() < end && course.quiet < 0) {
        crowd.office.run_for(1s);
        keep(course.lists, crowd.complete_lists() == crowd.people());
        keep(course.directories, crowd.complete_directories() == crowd.people());
        keep(course.quiet, crowd.quiet());
        for (sim::Peer& each : crowd.office.peers()) {
            course.greatest_queue = std::max(course.greatest_queue, each.queued());
        }
        if (points != nullptr && (now.now() >= next_point || course.quiet >= 0)) {
            crowd.point(*points);
            next_point = now.now() + until_next_point(now.now());
        }
    }
    return course;
}

void tell(std::ostream& out, std::string_view name, double value)
{
    out << "value," << name << ',' << value << '\n';
}

} // namespace capacity
