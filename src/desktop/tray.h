#pragma once

#include "forms/forms.h"
#include "platform/boxes.h"
#include "platform/process.h"
#include "platform/tray_icon.h"

#include <cstddef>

namespace desktop {

/// The icon in the notification area: its three images, its presses and its menu.
class Tray {
public:
    Tray(forms::Forms& forms, platform::TrayIcon& icon, platform::Boxes& boxes,
         platform::Process const& process);
    Tray(Tray const&) = delete;
    Tray& operator=(Tray const&) = delete;

    /// Adds the icon in its normal image.
    void trayadd();
    /// Messages wait.
    void ShellTrayAdd1();
    /// All is read.
    void ShellTrayAdd2();
    /// The user is away.
    void ShellTrayAdd3();
    /// The tray window goes, and the icon with it.
    void unload();

private:
    void left_pressed();
    void tell_progress();
    void panel_restarted();
    void choose(std::size_t entry);
    void toggle_away();
    void restore_main();

    forms::Forms& forms_;
    platform::TrayIcon& icon_;
    platform::Boxes& boxes_;
    platform::Process const& process_;
};

} // namespace desktop
