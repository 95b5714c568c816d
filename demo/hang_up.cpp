#include "demo/hang_up.h"

#include <atomic>
#include <csignal>

namespace demo {

namespace {

std::atomic<bool>& asked()
{
    static std::atomic<bool> flag = false;
    return flag;
}

void hear(int /*signal*/)
{
    asked() = true;
}

} // namespace

void listen_for_hang_up()
{
    asked() = false; // It exists before the first signal comes.
    for (int const signal : {SIGINT, SIGTERM, SIGHUP}) {
        std::signal(signal, hear);
    }
}

bool hung_up()
{
    return asked();
}

} // namespace demo
