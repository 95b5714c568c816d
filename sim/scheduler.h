#pragma once

#include <queue>

#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

namespace sim {

/// Virtual time: nothing waits for it. A moment is the time since the office opened.
using Duration = std::chrono::microseconds;

/// What will happen, in the order of time; of two events of one moment the one that was planned
/// first comes first.
///
/// An event may run the schedule itself, as a modal box does while it is open.
class Scheduler {
public:
    using Action = std::function<void()>;

    [[nodiscard]] Duration now() const { return now_; }

    void at(Duration moment, Action action);
    void after(Duration delay, Action action) { at(now_ + delay, std::move(action)); }

    /// Runs the next event, if it is due at or before `until`. Returns whether there was one.
    bool step(Duration until);

    /// Runs all that is due, and lets the time pass.
    void run_until(Duration moment);

    /// How many events have run. No run of an office needs `most_events`: one that does goes round
    /// in a circle, and is ended by a std::runtime_error.
    [[nodiscard]] std::uint64_t events() const { return events_; }
    static constexpr std::uint64_t most_events = 200'000'000;

private:
    struct Event {
        Duration moment;
        std::uint64_t number;
        mutable Action action; ///< moved out of the head, which the queue shows as const

        bool operator<(Event const& other) const
        {
            return moment != other.moment ? moment > other.moment : number > other.number;
        }
    };

    Duration now_{0};
    std::uint64_t planned_ = 0;
    std::uint64_t events_ = 0;
    std::priority_queue<Event> queue_;
};

} // namespace sim
