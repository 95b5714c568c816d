#pragma once

#include "tap/verdict.h"
#include "terminal/desk.h"
#include "terminal/options.h"

#include <optional>

namespace terminal {

/// The options that tell with whose eyes the datagrams are seen.
void add_eyes(Options& options);

/// The folder's own user, or the one that `--as` names, of whom no more is known than the directory
/// tells. Empty, after a complaint, where nobody has that name.
[[nodiscard]] std::optional<tap::View> eyes_of(Options const& options, Desk const& desk);

} // namespace terminal
