#pragma once

namespace demo {

/// From now on Ctrl+C, or an end asked for in another way, no longer ends the process at once.
void listen_for_hang_up();
/// Somebody has asked for the end.
[[nodiscard]] bool hung_up();

} // namespace demo
