#pragma once

#include "tap/checks/desktop.h"
#include "terminal/desk.h"

#include "forms/forms.h"

namespace terminal {

/// Whether somebody shows tray icons.
[[nodiscard]] tap::TrayHost look_at_tray();

/// What plays the sound that these forms are set to.
[[nodiscard]] tap::SoundWay look_at_sound(Desk const& desk, forms::FrmMain const& frmMain);

/// What this user's session starts, seen from the messenger at `program`.
[[nodiscard]] tap::SessionEntry look_at_session(Desk const& desk, bool wanted,
                                                QString const& program);

} // namespace terminal
