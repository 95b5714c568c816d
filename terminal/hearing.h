#pragma once

#include "tap/datagram.h"
#include "terminal/desk.h"
#include "terminal/ear.h"
#include "terminal/options.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace terminal {

/// When a command that listens has heard enough; without any bound Ctrl+C ends it.
struct Bounds {
    std::optional<std::chrono::milliseconds> time;
    std::optional<int> count;
    std::function<bool()> enough = {}; ///< looked at behind each datagram
};

void add_bounds(Options& options);
[[nodiscard]] Bounds bounds_of(Options const& options);

/// The one FILE of a command that takes one. Raises WrongUsage.
[[nodiscard]] QString capture_path(Options const& options);

struct Heard {
    int count = 0;
    bool stopped = false; ///< by Ctrl+C or a polite request
};

/// Hands on each datagram as it comes. Raises a Failure.
Heard hear(Ear& ear, Bounds const& bounds, std::function<void(tap::Datagram const&)> const& take);

/// Opens the ear at the office's port, and tells on standard error how it hears. Where the port is
/// held and the kernel permits no more, it tells the command that helps, and gives nothing; what
/// the person has given is `command` and its arguments.
[[nodiscard]] std::unique_ptr<Ear> ear_for(Desk const& desk, QString const& command,
                                           QStringList const& arguments);

/// The exit status of a command that listened.
[[nodiscard]] int status_of(Heard const& heard);

} // namespace terminal
