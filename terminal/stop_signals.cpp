#include "terminal/stop_signals.h"

#include "qt/desk_socket.h"

#include <cerrno>
#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace terminal {

namespace {

sigset_t both()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    return signals;
}

} // namespace

void StopSignals::hold_back()
{
    auto const signals = both();
    sigprocmask(SIG_BLOCK, &signals, nullptr);
}

StopSignals::StopSignals()
{
    hold_back();
    auto const signals = both();
    descriptor_ = signalfd(-1, &signals, SFD_CLOEXEC);
    if (descriptor_ < 0) {
        throw qt::failure_of(errno); // Nothing else could end the command.
    }
}

StopSignals::~StopSignals()
{
    ::close(descriptor_);
}

} // namespace terminal
