#include "terminal/hearing.h"

#include "terminal/exit_status.h"
#include "terminal/privileged.h"
#include "terminal/stop_signals.h"

#include "qt/desk_socket.h"
#include "text/failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <poll.h>

namespace terminal {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int most_at_once = 1024;

/// What is left until `end`, for the kernel: -1 waits without an end.
int rest(std::optional<Clock::time_point> const& end)
{
    constexpr long long longest = std::numeric_limits<int>::max();
    if (!end) {
        return -1;
    }
    auto const left = std::chrono::ceil<milliseconds>(*end - Clock::now()).count();
    return static_cast<int>(std::clamp<long long>(left, 0, longest));
}

} // namespace

void add_bounds(Options& options)
{
    options.add_value(QStringLiteral("for"), QStringLiteral("SECONDS"),
                      QStringLiteral("ends after so long; until Ctrl+C otherwise"));
    options.add_value(QStringLiteral("count"), QStringLiteral("N"),
                      QStringLiteral("ends after so many datagrams"));
}

Bounds bounds_of(Options const& options)
{
    return {.time = options.seconds(QStringLiteral("for")),
            .count = options.number(QStringLiteral("count"), 1, std::numeric_limits<int>::max())};
}

QString capture_path(Options const& options)
{
    if (options.operands().size() != 1) {
        throw WrongUsage{QStringLiteral("one FILE is wanted")};
    }
    return options.operands().constFirst();
}

Heard hear(Ear& ear, Bounds const& bounds, std::function<void(tap::Datagram const&)> const& take)
{
    StopSignals const stop;
    Heard heard;
    auto const end = bounds.time ? std::optional(Clock::now() + *bounds.time) : std::nullopt;
    auto const is_enough = [&] {
        return (bounds.count && heard.count >= *bounds.count) || (bounds.enough && bounds.enough());
    };
    while (!is_enough()) {
        std::array<pollfd, 2> waiting{pollfd{ear.descriptor(), POLLIN, 0},
                                      pollfd{stop.descriptor(), POLLIN, 0}};
        int const ready = poll(waiting.data(), waiting.size(), rest(end));
        if (ready < 0 && errno != EINTR) {
            throw qt::failure_of(errno);
        }
        heard.stopped = ready > 0 && waiting[1].revents != 0;
        bool const is_over = end && Clock::now() >= *end;
        // What has arrived before the end counts; a flood may not keep the end away.
        for (int turn = 0; turn < most_at_once && !is_enough(); ++turn) {
            auto const datagram = ear.take();
            if (!datagram) {
                break;
            }
            ++heard.count;
            take(*datagram);
        }
        if (heard.stopped || is_over) {
            break;
        }
    }
    return heard;
}

std::unique_ptr<Ear> ear_for(Desk const& desk, QString const& command, QStringList const& arguments)
{
    int const port = desk.folder.forms.frmMain.udplistenport;
    try {
        auto ear = std::make_unique<Ear>(port);
        StopSignals::hold_back(); // Before the words that promise it, not only once it hears.
        Printer::complain(
            QStringLiteral("listening on port %1%2; Ctrl+C ends it")
                .arg(port)
                .arg(ear->is_beside() ? QStringLiteral(", beside another program") : QString()));
        return ear;
    } catch (text::Failure const& failure) {
        if (failure.text != text::address_in_use) {
            throw;
        }
        Printer::complain(
            QStringLiteral("another program holds port %1, a messenger most likely. Close it, or "
                           "listen beside it:\n  %2")
                .arg(port)
                .arg(privileged(desk, command, arguments)));
        return nullptr;
    }
}

int status_of(Heard const& heard)
{
    return heard.count == 0 && !heard.stopped ? heard_nothing : done;
}

} // namespace terminal
