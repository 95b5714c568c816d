#include "sim/timer_driver.h"

namespace sim {

TimerDriver::TimerDriver(Scheduler& scheduler, Life& life, controls::Timer& timer)
    : state_(std::make_shared<State>(State{scheduler, life, &timer}))
{
    timer.switched.attach([state = state_] {
        ++state->starts;
        if (state->timer->enabled()) {
            plan(state);
        }
    });
}

TimerDriver::~TimerDriver()
{
    state_->timer->switched.attach({});
    state_->timer = nullptr;
}

void TimerDriver::plan(std::shared_ptr<State> const& state)
{
    std::chrono::milliseconds const interval(state->timer->interval_ms);
    state->scheduler.after(interval, [state, start = state->starts] {
        bool const is_due = state->timer != nullptr && state->starts == start;
        if (is_due && state->life.running()) {
            tick(state);
        }
    });
}

void TimerDriver::tick(std::shared_ptr<State> const& state)
{
    plan(state);
    if (state->ticking) {
        return;
    }
    state->ticking = true;
    state->life.enter([&] { state->timer->tick.run(); });
    state->ticking = false;
}

} // namespace sim
