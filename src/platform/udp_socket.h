#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace platform {

/// One UDP socket. A whole datagram is one text.
class UdpSocket {
public:
    static constexpr int state_closed = 0;
    static constexpr int state_bound = 1;

    virtual ~UdpSocket() = default;

    /// Harmless when it is closed already. Datagrams not yet delivered are lost.
    virtual void close() = 0;
    /// Binds all addresses at `port`, without sharing it. Raises a Failure: "Address in use" when
    /// the port is taken.
    virtual void bind(int port) = 0;
    /// Sends one datagram. Raises a Failure: "No route to host." when there is no network.
    virtual void send(std::string_view datagram, std::string_view host, int port) = 0;
    /// 0 closed, 1 bound.
    [[nodiscard]] virtual int state() const = 0;
    /// This machine's address and name, as a person would tell them.
    [[nodiscard]] virtual std::string local_address() const = 0;
    [[nodiscard]] virtual std::string local_host_name() const = 0;

    /// Called once for each datagram that arrives while the socket is bound.
    std::function<void(std::string)> arrived;
    /// Called when receiving fails, with the error's number and description.
    std::function<void(int, std::string)> failed;
};

} // namespace platform
