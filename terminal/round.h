#pragma once

#include "tap/roll.h"
#include "terminal/desk.h"
#include "terminal/ear.h"
#include "terminal/hearing.h"

#include <chrono>
#include <functional>

namespace terminal {

/// Whether the roll holds all that was wanted; then the listening ends early.
using Enough = std::function<bool()>;

/// Enters on the roll whoever is heard.
Heard listen_around(
    Ear& ear, tap::Roll& roll, std::chrono::milliseconds time,
    Enough const& enough = [] { return false; });

/// The same behind an announcement of the own name, which all answer: a round of discovery as the
/// messenger makes it. So the own name comes onto the lists of all. Raises a Failure when there is
/// no network.
Heard ask_around(
    Desk const& desk, Ear& ear, tap::Roll& roll, std::chrono::milliseconds time,
    Enough const& enough = [] { return false; });

} // namespace terminal
