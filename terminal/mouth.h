#pragma once

#include "network/endpoint.h"
#include "qt/desk_socket.h"

#include <string_view>

namespace terminal {

/// Speaks to the whole office as a messenger does, but from a port that nobody else wants: so it
/// works beside a messenger.
class Mouth {
public:
    /// `port` is the one on which everybody listens. Raises a Failure.
    explicit Mouth(int port);

    /// Raises a Failure when there is no network.
    void say(std::string_view datagram) { endpoint_.SendData(datagram); }

private:
    qt::DeskSocket socket_{qt::DeskSocket::Role::sending};
    network::Endpoint endpoint_{"vexlotap", socket_};
};

} // namespace terminal
