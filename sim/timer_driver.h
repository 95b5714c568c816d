#pragma once

#include "controls/basic.h"
#include "sim/life.h"
#include "sim/scheduler.h"

#include <memory>

namespace sim {

/// Gives one timer of a form its virtual time, as the desktop's event loop gives it the real one: a
/// tick comes a whole interval after the start, and never inside a tick of the same timer.
class TimerDriver {
public:
    TimerDriver(Scheduler& scheduler, Life& life, controls::Timer& timer);
    ~TimerDriver();
    TimerDriver(TimerDriver const&) = delete;
    TimerDriver& operator=(TimerDriver const&) = delete;

private:
    /// Shared with the ticks that are planned; they may come after the timer has gone.
    struct State {
        Scheduler& scheduler;
        Life& life;
        controls::Timer* timer = nullptr;
        unsigned starts = 0;
        bool ticking = false;
    };

    static void plan(std::shared_ptr<State> const& state);
    static void tick(std::shared_ptr<State> const& state);

    std::shared_ptr<State> state_;
};

} // namespace sim
