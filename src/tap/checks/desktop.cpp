#include "tap/checks/desktop.h"

#include "tap/shell_word.h"

#include <algorithm>

namespace tap {

namespace {

using Health = Finding::Health;

constexpr auto in_the_settings =
    R"(in the messenger: Settings, "General ", "Start With Windows", then Save)";
constexpr auto another_sound = R"(# in the messenger: Settings, "Sound file": choose another one)";

bool is_wave(std::string const& head)
{
    constexpr std::size_t form = 8;
    return head.starts_with("RIFF") && head.substr(std::min(form, head.size())) == "WAVE";
}

std::string made_anew(SessionEntry const& entry)
{
    return "rm " + shell_word(entry.file) + " # then " + in_the_settings;
}

std::string tray_remedy(std::string const& desktop)
{
    if (desktop.find("GNOME") != std::string::npos) {
        return "sudo apt-get install gnome-shell-extension-appindicator && gnome-extensions enable "
               "ubuntu-appindicators@ubuntu.com # then log in anew";
    }
    return "sudo apt-get install trayer && trayer & "
           R"(# or add a tray, "Status Notifier" or "System Tray", to the panel of this desktop)";
}

} // namespace

Finding check_tray(TrayHost const& tray)
{
    std::string const check = "tray";
    if (tray.on_bus) {
        return {check, Health::well, "somebody on the session bus shows icons"};
    }
    if (tray.on_screen) {
        return {check, Health::well, "a tray is on the screen"};
    }
    if (!tray.has_desktop) {
        return {check, Health::unknown, "there is no desktop here",
                "# start vexlotap doctor in a terminal of the desktop"};
    }
    return {check, Health::warning,
            "nobody shows icons; the messenger then stays in the list of windows",
            tray_remedy(tray.desktop)};
}

Finding check_sound(SoundWay const& sound)
{
    std::string const check = "sound";
    if (!sound.switched_on) {
        return {check, Health::well, "switched off in the settings"};
    }
    if (sound.file.empty()) {
        return {check, Health::unknown, "the messenger has not been started here yet"};
    }
    if (!sound.head) {
        return {check, Health::warning, sound.file + " cannot be read", another_sound};
    }
    if (!is_wave(*sound.head)) {
        return {check, Health::warning, sound.file + " is no wave file", another_sound};
    }
    if (!sound.has_server) {
        return {check, Health::warning, "nobody takes sounds in this session",
                "systemctl --user start pipewire pipewire-pulse"};
    }
    return {check, Health::well, sound.file};
}

Finding check_session(SessionEntry const& entry)
{
    std::string const check = "session start";
    if (entry.command.empty()) {
        return entry.wanted ? Finding{check, Health::warning, "wanted, and there is no entry yet",
                                      shell_word(entry.own_program) + " & # it makes the entry"}
                            : Finding{check, Health::well, "not wanted"};
    }
    if (!entry.program_runs) {
        return {check, Health::wrong, "the entry names " + entry.program + ", which does not run",
                made_anew(entry)};
    }
    if (!entry.is_own) {
        return {check, Health::warning,
                "the entry starts " + entry.program + ", not " + entry.own_program,
                made_anew(entry)};
    }
    return {check, Health::well, entry.command};
}

} // namespace tap
