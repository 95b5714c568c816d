#pragma once

#include "platform/udp_socket.h"
#include "sim/journal.h"
#include "sim/life.h"
#include "sim/segment.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace sim {

/// One UDP socket of one host of a segment.
class Socket : public platform::UdpSocket {
public:
    Socket(Segment& segment, Segment::Host& host, Life& life, Journal& journal);
    ~Socket() override;
    Socket(Socket const&) = delete;
    Socket& operator=(Socket const&) = delete;

    void close() override;
    /// Port 0 takes any free port; a port that is none raises "Invalid argument".
    void bind(int port) override;
    void send(std::string_view datagram, std::string_view host, int port) override;
    [[nodiscard]] int state() const override { return port_ == 0 ? state_closed : state_bound; }
    [[nodiscard]] std::string local_address() const override;
    [[nodiscard]] std::string local_host_name() const override { return host_.name; }

    /// Asked before a datagram of the segment is handed on: whether somebody keeps it, by its
    /// number, to hand it on later.
    std::function<bool(std::size_t number)> held_back;

    /// A datagram has reached the socket.
    void receive(std::string const& datagram);
    /// Receiving fails.
    void fail(int number, std::string const& description);

    /// The port that is bound; 0 while the socket is closed.
    [[nodiscard]] int port() const { return port_; }
    /// Counts the calls of bind(): what came in under an older one is lost.
    [[nodiscard]] unsigned bindings() const { return bindings_; }

private:
    [[nodiscard]] int free_port() const;
    void require_network(int port) const;

    Segment& segment_;
    Segment::Host& host_;
    Life& life_;
    Journal& journal_;
    int port_ = 0;
    unsigned bindings_ = 0;
};

} // namespace sim
