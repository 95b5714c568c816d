#pragma once

#include "platform/udp_socket.h"

#include <string>
#include <string_view>

namespace network {

/// One of the program's two sockets with its settings. It only ever speaks to the broadcast
/// address.
class Endpoint {
public:
    static constexpr std::string_view everybody = "255.255.255.255";
    static constexpr int udp = 1;

    /// `name` is the origin that the failures of this socket carry.
    Endpoint(std::string_view name, platform::UdpSocket& socket) : name_(name), socket_(socket) {}

    Endpoint(Endpoint const&) = delete;
    Endpoint& operator=(Endpoint const&) = delete;

    void Close() { socket_.close(); }
    /// Raises a Failure when the port cannot be bound.
    void Bind(int port);
    /// One text as one datagram to the remote host and port. Raises a Failure.
    void SendData(std::string_view text);

    [[nodiscard]] int State() const { return socket_.state(); }
    [[nodiscard]] std::string LocalIP() const { return socket_.local_address(); }
    [[nodiscard]] std::string LocalHostName() const { return socket_.local_host_name(); }

    int Protocol = udp;
    std::string RemoteHost;
    int LocalPort = 0;
    int RemotePort = 0;

    [[nodiscard]] std::string_view name() const { return name_; }

private:
    std::string_view name_;
    platform::UdpSocket& socket_;
};

/// The name of a socket's state as the window title shows it; a bound UDP socket is "Listening".
[[nodiscard]] std::string_view state_name(int state);

/// The same for the sending socket: its states bear the same names but for the first, since a bound
/// sender is "Ready".
[[nodiscard]] std::string_view sender_state_name(int state);

} // namespace network
