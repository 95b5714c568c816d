#include "sim/scheduler.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace sim {

void Scheduler::at(Duration moment, Action action)
{
    queue_.push({std::max(moment, now_), planned_++, std::move(action)});
}

bool Scheduler::step(Duration until)
{
    if (queue_.empty() || queue_.top().moment > until) {
        return false;
    }
    if (++events_ > most_events) {
        throw std::runtime_error("the simulated office goes round in a circle");
    }
    auto const action = std::move(queue_.top().action);
    now_ = std::max(now_, queue_.top().moment);
    queue_.pop();
    action();
    return true;
}

void Scheduler::run_until(Duration moment)
{
    while (step(moment)) {
    }
    now_ = std::max(now_, moment);
}

} // namespace sim
