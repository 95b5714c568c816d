#pragma once

#include "demo/stage.h"

namespace demo {

/// Two people meet on the network, one writes, the other one's window pops up and is answered.
/// Tells on the terminal what happens. Returns whether it went as told.
[[nodiscard]] bool play_first_exchange(Stage& stage);

} // namespace demo
