#pragma once

#include "sim/chance.h"
#include "sim/scheduler.h"

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

namespace capacity {

[[nodiscard]] double seconds(sim::Duration time);

/// What an office is like before anybody starts.
struct Terms {
    int people = 10;
    /// So many of them have each other in `users.txt`; the others have no such file.
    int acquainted = 0;
    std::uint64_t seed = 1;
    double loss = 0;
    bool checks = false; ///< the half-hourly check is on
};

/// A crowd on one segment: what can be made to happen, and what can be seen of all at once. People
/// have numbers from 0.
class Scene {
public:
    explicit Scene(Terms const& terms) : chance(terms.seed + 1), people_(terms.people) {}
    virtual ~Scene() = default;
    Scene(Scene const&) = delete;
    Scene& operator=(Scene const&) = delete;

    [[nodiscard]] int people() const { return people_; }
    [[nodiscard]] virtual sim::Duration now() const = 0;
    virtual void run_for(sim::Duration time) = 0;

    virtual void start_at(sim::Duration moment, int number) = 0;
    /// "Find Other Users", as this person chooses it after a while.
    virtual void find_others_after(sim::Duration delay, int number) = 0;
    /// Everybody starts where nobody hears it, and one round puts all on all lists.
    virtual void meet() = 0;
    /// This program has counted so many ticks towards its next check.
    virtual void set_count(int number, int ticks) = 0;

    [[nodiscard]] virtual std::vector<std::size_t> queues() = 0;
    /// How many names each list on show has.
    [[nodiscard]] virtual std::vector<int> lists() = 0;
    /// How many programs have everybody in the directory, and in `users.txt`.
    [[nodiscard]] virtual int complete_directories() = 0;
    /// Whether all have been started, and nothing waits or is on its way.
    [[nodiscard]] virtual bool quiet() = 0;

    struct Sent {
        std::size_t datagrams = 0;
        std::size_t announcements = 0;
    };
    /// Since the beginning, or since all have met.
    [[nodiscard]] virtual Sent sent() = 0;

    [[nodiscard]] int complete_lists();
    /// Names that are missing on all lists together.
    [[nodiscard]] int missing_names();
    [[nodiscard]] std::size_t greatest_queue();
    /// A line of the present moment: time, median and greatest queue, complete lists, complete
    /// directories.
    void point(std::ostream& out);

    sim::Chance chance;

private:
    int people_;
};

/// Lets the crowd run until it is quiet, or for `limit`, and looks at it every second. A point goes
/// out often at first, seldom later.
struct Course {
    double lists = -1;       ///< since when all lists have been complete; -1 when one is not
    double directories = -1; ///< the same for `users.txt`
    double quiet = -1;       ///< when the last queue was empty; -1 when the limit came first
    std::size_t greatest_queue = 0;
};
Course follow(Scene& scene, sim::Duration limit, std::ostream* points);

void tell(std::ostream& out, std::string_view name, double value);

} // namespace capacity
