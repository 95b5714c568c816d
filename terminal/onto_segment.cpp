#include "terminal/onto_segment.h"

#include "terminal/mouth.h"
#include "terminal/stop_signals.h"

#include <chrono>
#include <poll.h>

namespace terminal {

namespace {

using Clock = std::chrono::steady_clock;

/// Waits for the moment; false when a signal comes first.
bool wait_for(Clock::time_point moment, StopSignals const& stop)
{
    constexpr int longest_wait = 1000;
    for (;;) {
        auto const left =
            std::chrono::ceil<std::chrono::milliseconds>(moment - Clock::now()).count();
        pollfd signal{stop.descriptor(), POLLIN, 0};
        int const wait = left > longest_wait ? longest_wait : static_cast<int>(left);
        if (poll(&signal, 1, wait < 0 ? 0 : wait) > 0) {
            return false;
        }
        if (Clock::now() >= moment) {
            return true;
        }
    }
}

} // namespace

int put_onto_segment(std::vector<tap::Datagram> const& capture, int port)
{
    StopSignals const stop;
    Mouth mouth(port);
    auto const begin = Clock::now();
    int sent = 0;
    for (auto const& each : capture) {
        if (!wait_for(begin + each.when, stop)) {
            break;
        }
        mouth.say(each.bytes);
        ++sent;
    }
    return sent;
}

} // namespace terminal
