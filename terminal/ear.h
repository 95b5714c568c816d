#pragma once

#include "tap/datagram.h"

#include <chrono>
#include <optional>

namespace terminal {

/// Hears every datagram that reaches this machine at the office's port.
class Ear {
public:
    /// Holds the port as a messenger does, without sharing it. Where a messenger holds it already,
    /// the ear listens beside it, which the kernel permits to a privileged process only: else it
    /// raises a Failure, "Address in use". A number that is no port raises one, too.
    explicit Ear(int port);
    ~Ear();
    Ear(Ear const&) = delete;
    Ear& operator=(Ear const&) = delete;

    /// The next datagram that waits, if there is one. Raises a Failure.
    [[nodiscard]] std::optional<tap::Datagram> take();

    /// Whether another program holds the port.
    [[nodiscard]] bool is_beside() const { return beside_; }
    /// Readable when a datagram waits.
    [[nodiscard]] int descriptor() const { return socket_; }

private:
    void hold_port();
    void listen_beside();

    int port_;
    int socket_ = -1;
    bool beside_ = false;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

} // namespace terminal
