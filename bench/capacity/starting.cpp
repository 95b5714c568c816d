#include "bench/capacity/crowd.h"
#include "bench/capacity/scenarios.h"

#include <algorithm>
#include <stdexcept>

namespace capacity {

using namespace std::chrono_literals;

namespace {

constexpr int most_refreshes = 10;

/// Newcomers are the last of the crowd: they know nobody, and nobody knows them.
void make_newcomers(Crowd& crowd, int newcomers)
{
    int const acquainted = crowd.people() - newcomers;
    for (int number = 0; number < crowd.people(); ++number) {
        auto& files = crowd.peer(number).files;
        auto const all = files.content("users.txt");
        std::size_t end = 0;
        for (int row = 0; row < acquainted; ++row) {
            end = all.find('\n', end) + 1;
        }
        if (number < acquainted) {
            files.put("users.txt", all.substr(0, end));
        } else {
            files.erase("users.txt");
        }
    }
}

/// The numbers of the people in the order in which they start.
std::vector<int> order_of(Crowd& crowd, std::string const& order, int newcomers)
{
    std::vector<int> people;
    for (int number = 0; number < crowd.people(); ++number) {
        people.push_back(number);
    }
    if (order == "random") {
        for (auto left = people.size(); left > 1; --left) {
            std::swap(people[left - 1], people[crowd.chance.below(left)]);
        }
    } else if (order == "first") {
        std::ranges::rotate(people, people.end() - newcomers);
    } else if (order != "last") {
        throw std::invalid_argument("order is random, first or last");
    }
    return people;
}

void plan_starts(Crowd& crowd, std::vector<int> const& order, sim::Duration over)
{
    std::vector<sim::Duration> moments;
    for (int number = 0; number < crowd.people(); ++number) {
        moments.emplace_back(crowd.chance.below(static_cast<std::uint64_t>(over.count())));
    }
    std::ranges::sort(moments);
    auto moment = moments.begin();
    for (int const number : order) {
        crowd.office.scheduler.at(*moment++, [&peer = crowd.peer(number)] { peer.start(); });
    }
}

/// When all is quiet and somebody is missing on somebody's list, one person after the other looks
/// for the others.
void refresh_until_complete(Crowd& crowd, std::ostream& out)
{
    for (int refresh = 0; refresh < most_refreshes; ++refresh) {
        if (crowd.complete_lists() == crowd.people()) {
            break;
        }
        auto const begin = crowd.office.scheduler.now();
        Crowd::find_others(crowd.peer(refresh));
        follow(crowd, 1h, nullptr);
        out << "refresh," << refresh + 1 << ',' << seconds(crowd.office.scheduler.now() - begin)
            << ',' << crowd.complete_lists() << ',' << crowd.missing_names() << '\n';
    }
}

/// Everybody looks for the others, within a minute.
void refresh_all(Crowd& crowd, sim::Duration limit, std::ostream& out)
{
    auto const begin = crowd.office.scheduler.now();
    for (int number = 0; number < crowd.people(); ++number) {
        auto const delay = std::chrono::milliseconds(crowd.chance.below(60'000));
        crowd.office.scheduler.after(delay,
                                     [&peer = crowd.peer(number)] { Crowd::find_others(peer); });
    }
    crowd.office.run_for(1min);
    auto const course = follow(crowd, limit, nullptr);
    out << "refresh,all," << seconds(crowd.office.scheduler.now() - begin) << ','
        << crowd.complete_lists() << ',' << crowd.missing_names() << '\n';
    tell(out, "refresh_lists", course.lists < 0 ? -1 : course.lists - seconds(begin));
    tell(out, "refresh_greatest_queue", static_cast<double>(course.greatest_queue));
}

void tell_course(Crowd& crowd, Course const& course, std::ostream& out)
{
    std::size_t waiting = 0;
    for (sim::Peer& each : crowd.office.peers()) {
        waiting = std::max(waiting, each.queued());
    }
    tell(out, "lists", course.lists);
    tell(out, "directories", course.directories);
    tell(out, "quiet", course.quiet);
    tell(out, "greatest_queue", static_cast<double>(course.greatest_queue));
    tell(out, "datagrams", static_cast<double>(crowd.office.segment.sent().size()));
    tell(out, "end", seconds(crowd.office.scheduler.now()));
    tell(out, "waiting", static_cast<double>(waiting));
    tell(out, "complete_lists", crowd.complete_lists());
    tell(out, "complete_directories", crowd.complete_directories());
    tell(out, "missing_names", crowd.missing_names());
}

} // namespace

void start(Arguments const& told, std::ostream& out)
{
    int const people = told.count("people", 10);
    int const newcomers = told.count("newcomers", 0);
    auto const known =
        told.text("day", "first") == "first" ? Crowd::Known::nobody : Crowd::Known::all;
    auto const limit = std::chrono::seconds(told.count("limit", 8 * 3600));
    Crowd crowd(people, static_cast<std::uint64_t>(told.count("seed", 1)), known,
                {.settings = {{"PLAYSOUND", "0"}}});
    if (newcomers > 0) {
        make_newcomers(crowd, newcomers);
    }
    crowd.office.segment.faults.loss = told.number("loss", 0);
    plan_starts(crowd, order_of(crowd, told.text("order", "random"), newcomers),
                std::chrono::seconds(told.count("over", 60)));

    auto const course = follow(crowd, limit, &out);

    tell_course(crowd, course, out);
    if (course.quiet < 0) {
        return;
    }
    if (told.text("refresh", "one") == "all") {
        refresh_all(crowd, limit, out);
    } else {
        refresh_until_complete(crowd, out);
    }
}

} // namespace capacity
