#pragma once

#include "tap/finding.h"

#include <optional>
#include <string>

namespace tap {

/// What the desktop has for the messenger's icon.
struct TrayHost {
    bool has_desktop = false; ///< a screen is there at all
    bool on_bus = false;      ///< somebody shows icons that come over the session bus
    bool on_screen = false;   ///< a tray of the older kind is on the X screen
    std::string desktop = {}; ///< its name, as the session tells it
};

[[nodiscard]] Finding check_tray(TrayHost const& tray);

/// What it takes to play the sound of a message.
struct SoundWay {
    bool switched_on = false;
    std::string file = {};                ///< path of the wave file; empty before the first start
    std::optional<std::string> head = {}; ///< its first twelve bytes; empty: it cannot be read
    bool has_server = false;              ///< somebody takes sounds in this session
};

[[nodiscard]] Finding check_sound(SoundWay const& sound);

/// How the session starts the messenger.
struct SessionEntry {
    bool wanted = false;          ///< the option "Start With Windows"
    std::string file = {};        ///< path of the entry
    std::string command = {};     ///< of the entry; empty: there is none
    std::string program = {};     ///< the path that the command names
    bool program_runs = false;    ///< it can be executed
    std::string own_program = {}; ///< the messenger of the folder that is looked at
    bool is_own = false;          ///< both are the same file
};

[[nodiscard]] Finding check_session(SessionEntry const& entry);

} // namespace tap
