#include "desktop/companions.h"

namespace desktop {

Companions::Companions(forms::FrmMain& frmMain, platform::Processes& processes)
    : frmMain_(frmMain), processes_(processes)
{
    // At every save of the settings, whatever the watchdog's own option says.
    frmMain_.stopwatchdog.attach([this] { KillProcess("vexlowatchdog.exe"); });
}

void Companions::KillProcess(std::string_view NameProcess)
{
    if (NameProcess.empty()) {
        return;
    }
    auto const& letters = frmMain_.letters;
    auto const tail = letters.lower(NameProcess);
    for (auto const& process : processes_.others()) {
        if (letters.lower(process.executable).ends_with(tail)) {
            processes_.kill(process.id);
        }
    }
}

} // namespace desktop
