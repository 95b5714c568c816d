#pragma once

#include "sim/chance.h"
#include "sim/office.h"

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

namespace capacity {

[[nodiscard]] double seconds(sim::Duration time);

/// A crowd of people in one office, and what can be seen of all of them at once. What is measured
/// goes out as lines of comma-separated values, the kind of line first.
class Crowd {
public:
    enum class Known { nobody, all };

    /// `people` hosts that have not been started. Who knows all has everybody's row in `users.txt`.
    Crowd(int people, std::uint64_t seed, Known known, sim::Setup setup = {});

    /// Everybody starts where nobody hears it, and one round puts all on all lists.
    void meet();
    /// "Find Other Users", as this person chooses it.
    static void find_others(sim::Peer& peer);

    [[nodiscard]] int people() const { return people_; }
    [[nodiscard]] sim::Peer& peer(int number)
    {
        return office.peers().at(static_cast<std::size_t>(number));
    }

    /// How many programs have everybody on the list on show.
    [[nodiscard]] int complete_lists();
    /// How many have everybody in the directory, and in `users.txt`.
    [[nodiscard]] int complete_directories();
    /// Names that are missing on all lists together.
    [[nodiscard]] int missing_names();
    /// Whether all have been started, and nothing waits or is on its way.
    [[nodiscard]] bool quiet();

    /// A line of the present moment: time, median and greatest queue, complete lists, complete
    /// directories.
    void point(std::ostream& out);
    /// Messages that have reached somebody's screen.
    [[nodiscard]] std::size_t shown();

    sim::Office office;
    sim::Chance chance;

private:
    [[nodiscard]] bool has_full_file(std::size_t number);

    int people_;
    std::vector<bool> full_files_; ///< a row never leaves the file again
};

/// Lets the crowd run until it is quiet, or for `limit`. Told of every second are the times; a
/// point goes out often at first, seldom later.
struct Course {
    double lists = -1;       ///< since when all lists have been complete; -1 when one is not
    double directories = -1; ///< the same for `users.txt`
    double quiet = -1;       ///< when the last queue was empty; -1 when the limit came first
    std::size_t greatest_queue = 0;
};
Course follow(Crowd& crowd, sim::Duration limit, std::ostream* points);

void tell(std::ostream& out, std::string_view name, double value);

} // namespace capacity
