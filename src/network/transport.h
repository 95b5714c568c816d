#pragma once

#include "forms/frm_main.h"
#include "network/endpoint.h"
#include "platform/udp_socket.h"

#include <string_view>

namespace network {

/// The two sockets: SckUDP listens, SckUDP1 sends. Both are aimed at the broadcast address, so
/// every datagram reaches every peer, the sender too.
class Transport {
public:
    Transport(forms::FrmMain& frmMain, platform::UdpSocket& listening,
              platform::UdpSocket& sending);

    /// Set-up of one socket, from close to bind. Raises a Failure.
    void set_up_listening();
    void set_up_sending();
    void close_both();

    /// Sends through SckUDP1. Raises a Failure.
    void send(std::string_view datagram) { SckUDP1.SendData(datagram); }

    /// The names under which failure handlers know the two sockets.
    static constexpr std::string_view listening_name = "DiscoveryPort";
    static constexpr std::string_view sending_name = "DiscoveryPort1";

    [[nodiscard]] static bool is_socket(std::string_view origin)
    {
        return origin == listening_name || origin == sending_name;
    }

    Endpoint SckUDP;
    Endpoint SckUDP1;

private:
    void show_error(int number, std::string_view description);

    forms::FrmMain& frmMain_;
};

} // namespace network
