#pragma once

#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/udp_socket.h"

#include <string>
#include <string_view>
#include <vector>

/// The little that the inbound flows ask of a desk, where there is none.
namespace tap {

class StoppedClock : public platform::Clock {
public:
    [[nodiscard]] text::LocalTime now() const override { return {}; }
};

class NoEnvironment : public platform::Environment {
public:
    [[nodiscard]] std::string value(std::string_view) const override { return {}; }
    [[nodiscard]] std::string own_value(std::string_view) const override { return {}; }
};

/// A socket that only writes down what it was to send.
class Outbox : public platform::UdpSocket {
public:
    void close() override {}
    void bind(int) override {}
    void send(std::string_view datagram, std::string_view, int) override
    {
        sent.emplace_back(datagram);
    }
    [[nodiscard]] int state() const override { return state_bound; }
    [[nodiscard]] std::string local_address() const override { return {}; }
    [[nodiscard]] std::string local_host_name() const override { return {}; }

    std::vector<std::string> sent;
};

} // namespace tap
