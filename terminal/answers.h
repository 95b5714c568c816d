#pragma once

#include "terminal/desk.h"
#include "terminal/ear.h"
#include "terminal/printer.h"

#include <chrono>

namespace terminal {

/// Prints the messages that are for this desk alone, until there were `count` or the time is over.
/// Returns done, or heard_nothing without any.
[[nodiscard]] int print_answers(Desk const& desk, Ear& ear, std::chrono::milliseconds time,
                                int count, Printer const& printer);

} // namespace terminal
