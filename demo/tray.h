#pragma once

#include "qt/codec.h"
#include "qt/desk_tray.h"
#include "sim/peer.h"

#include <string>

namespace demo {

/// The icon of one peer in the real notification area, made equal to what its program wants.
class Tray {
public:
    /// Both must outlive the icon.
    Tray(sim::Peer& peer, qt::Codec const& codec);

    void show();
    [[nodiscard]] qt::DeskTray& icon() { return icon_; }

private:
    sim::Peer& peer_;
    qt::DeskTray icon_;
    bool shown_ = false;
    platform::TrayIcon::Image image_{};
    std::string tip_;
};

} // namespace demo
