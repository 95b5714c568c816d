#pragma once

namespace terminal {

/// Whether a tray of the older kind, which swallows windows, is on the X screen of this session.
[[nodiscard]] bool tray_is_on_screen();

} // namespace terminal
