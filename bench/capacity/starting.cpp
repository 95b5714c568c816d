#include "bench/capacity/scenarios.h"
#include "bench/capacity/stage.h"

#include <algorithm>
#include <stdexcept>

namespace capacity {

using namespace std::chrono_literals;

namespace {

constexpr int most_refreshes = 10;

/// The numbers of the people in the order in which they start. Newcomers have the highest numbers.
std::vector<int> order_of(Scene& scene, std::string const& order, int newcomers)
{
    std::vector<int> people;
    for (int number = 0; number < scene.people(); ++number) {
        people.push_back(number);
    }
    if (order == "random") {
        for (auto left = people.size(); left > 1; --left) {
            std::swap(people[left - 1], people[scene.chance.below(left)]);
        }
    } else if (order == "first") {
        std::ranges::rotate(people, people.end() - newcomers);
    } else if (order != "last") {
        throw std::invalid_argument("order is random, first or last");
    }
    return people;
}

void plan_starts(Scene& scene, std::vector<int> const& order, sim::Duration over)
{
    std::vector<sim::Duration> moments;
    for (int number = 0; number < scene.people(); ++number) {
        moments.emplace_back(scene.chance.below(static_cast<std::uint64_t>(over.count())));
    }
    std::ranges::sort(moments);
    auto moment = moments.begin();
    for (int const number : order) {
        scene.start_at(*moment++, number);
    }
}

/// When all is quiet and somebody is missing on somebody's list, one person after the other looks
/// for the others.
void refresh_until_complete(Scene& scene, std::ostream& out)
{
    for (int refresh = 0; refresh < most_refreshes; ++refresh) {
        if (scene.complete_lists() == scene.people()) {
            break;
        }
        auto const begin = scene.now();
        scene.find_others_after(0s, refresh);
        follow(scene, 1h, nullptr);
        out << "refresh," << refresh + 1 << ',' << seconds(scene.now() - begin) << ','
            << scene.complete_lists() << ',' << scene.missing_names() << '\n';
    }
}

/// Everybody looks for the others, within a minute.
void refresh_all(Scene& scene, sim::Duration limit, std::ostream& out)
{
    auto const begin = scene.now();
    for (int number = 0; number < scene.people(); ++number) {
        scene.find_others_after(std::chrono::milliseconds(scene.chance.below(60'000)), number);
    }
    scene.run_for(1min);
    follow(scene, limit, nullptr);
    out << "refresh,all," << seconds(scene.now() - begin) << ',' << scene.complete_lists() << ','
        << scene.missing_names() << '\n';
}

void tell_course(Scene& scene, Course const& course, std::ostream& out)
{
    tell(out, "lists", course.lists);
    tell(out, "directories", course.directories);
    tell(out, "quiet", course.quiet);
    tell(out, "greatest_queue", static_cast<double>(course.greatest_queue));
    tell(out, "datagrams", static_cast<double>(scene.sent().datagrams));
    tell(out, "end", seconds(scene.now()));
    tell(out, "waiting", static_cast<double>(scene.greatest_queue()));
    tell(out, "complete_lists", scene.complete_lists());
    tell(out, "complete_directories", scene.complete_directories());
    tell(out, "missing_names", scene.missing_names());
}

} // namespace

void start(Arguments const& told, std::ostream& out)
{
    int const people = told.count("people", 10);
    int const newcomers = told.count("newcomers", 0);
    bool const first_day = told.text("day", "first") == "first";
    auto const limit = std::chrono::seconds(told.count("limit", 24 * 3600));
    auto const stage = open_stage(told, {.people = people,
                                         .acquainted = first_day ? 0 : people - newcomers,
                                         .seed = seed_of(told),
                                         .loss = told.number("loss", 0)});
    auto& scene = *stage;
    plan_starts(scene, order_of(scene, told.text("order", "random"), newcomers),
                std::chrono::seconds(told.count("over", 60)));

    auto const course = follow(scene, limit, &out);

    tell_course(scene, course, out);
    if (course.quiet < 0) {
        return;
    }
    if (told.text("refresh", "one") == "all") {
        refresh_all(scene, limit, out);
    } else {
        refresh_until_complete(scene, out);
    }
}

} // namespace capacity
