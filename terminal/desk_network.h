#pragma once

#include "tap/checks/buffer.h"
#include "tap/checks/network.h"

#include <vector>

namespace terminal {

/// The network interfaces of this machine.
[[nodiscard]] std::vector<tap::Interface> look_at_interfaces();

/// By which of them a broadcast to everybody leaves: the kernel's choice, else the messenger's.
[[nodiscard]] tap::WayOut look_at_way_out(std::vector<tap::Interface> const& interfaces);

/// Sends one blank, which every messenger drops, to everybody, and listens whether it comes back.
[[nodiscard]] tap::Echo try_echo(int port);

/// What a program without privileges gets when it asks for as much as the messenger does.
[[nodiscard]] tap::ReceiveBuffer try_buffer();

} // namespace terminal
