#include "bench/capacity/scene.h"

#include <algorithm>

namespace capacity {

using namespace std::chrono_literals;

namespace {

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

int Scene::complete_lists()
{
    return static_cast<int>(std::ranges::count(lists(), people_));
}

int Scene::missing_names()
{
    int missing = 0;
    for (int const names : lists()) {
        missing += people_ - names;
    }
    return missing;
}

std::size_t Scene::greatest_queue()
{
    return std::ranges::max(queues());
}

void Scene::point(std::ostream& out)
{
    auto rows = queues();
    std::ranges::sort(rows);
    out << "point," << seconds(now()) << ',' << rows[rows.size() / 2] << ',' << rows.back() << ','
        << complete_lists() << ',' << complete_directories() << '\n';
}

Course follow(Scene& scene, sim::Duration limit, std::ostream* points)
{
    Course course;
    auto const keep = [&scene](double& since, bool complete) {
        since = !complete ? -1 : since < 0 ? seconds(scene.now()) : since;
    };
    auto const end = scene.now() + limit;
    auto next_point = scene.now();
    while (scene.now() < end && course.quiet < 0) {
        scene.run_for(1s);
        keep(course.lists, scene.complete_lists() == scene.people());
        keep(course.directories, scene.complete_directories() == scene.people());
        keep(course.quiet, scene.quiet());
        course.greatest_queue = std::max(course.greatest_queue, scene.greatest_queue());
        if (points != nullptr && (scene.now() >= next_point || course.quiet >= 0)) {
            scene.point(*points);
            next_point = scene.now() + until_next_point(scene.now());
        }
    }
    return course;
}

void tell(std::ostream& out, std::string_view name, double value)
{
    out << "value," << name << ',' << value << '\n';
}

} // namespace capacity
