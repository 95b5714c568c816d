#pragma once

#include "forms/frm_main.h"
#include "network/transport.h"
#include "platform/boxes.h"

#include <optional>
#include <string_view>

namespace network {

/// The two port numbers as a person changes them, and the reset of both sockets.
class Ports {
public:
    Ports(forms::FrmMain& frmMain, Transport& transport, platform::Boxes& boxes)
        : frmMain_(frmMain), transport_(transport), boxes_(boxes)
    {
    }

    /// Asks for a new listening port; both sockets move. A port that cannot be bound raises a
    /// Failure.
    void changeports1();
    /// The same for the sending port.
    void changeports2();
    /// The port reset: both sockets are set up anew, and a new announcement goes out. Raises a
    /// Failure.
    void Command6();

private:
    /// The port that is asked for; none when it is to stay, or is the other one of the two.
    [[nodiscard]] std::optional<int> new_port(std::string_view prompt, int present, int other);
    /// Both sockets to a port that is set for our side and for the others'.
    void move(int& ours, int& theirs, int port);
    void rebind_both();
    void refuse_same_ports();

    forms::FrmMain& frmMain_;
    Transport& transport_;
    platform::Boxes& boxes_;
};

} // namespace network
