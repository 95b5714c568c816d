#pragma once

#include "forms/frm_main.h"
#include "forms/others.h"
#include "network/presence.h"
#include "network/transport.h"
#include "network/trouble.h"
#include "platform/clock.h"

namespace network {

/// The watch of every five seconds: the user check, the lost network and its return, the window
/// title.
class Watch {
public:
    struct Uses {
        forms::FrmMain& frmMain;
        forms::Log& log;
        Presence& presence;
        Transport& transport;
        Trouble& trouble;
        platform::Clock& clock;
    };

    explicit Watch(Uses uses) : uses_(uses) {}

    /// One tick of Timer1.
    void tick();

private:
    void probe();
    void restored();
    void still_down(text::Failure const& failure);
    void show_title();

    Uses uses_;
};

} // namespace network
