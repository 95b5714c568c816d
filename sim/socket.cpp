#include "sim/socket.h"

namespace sim {

using text::Failure;

namespace {

constexpr int highest_port = 65535;
constexpr int first_free_port = 49152;

constexpr int not_connected = 107;
constexpr int invalid_argument = 22;
constexpr int message_too_long = 90;
constexpr int in_use = 98;
constexpr int no_route = 113;

} // namespace

Socket::Socket(Segment& segment, Segment::Host& host, Life& life, Journal& journal)
    : segment_(segment), host_(host), life_(life), journal_(journal)
{
}

Socket::~Socket()
{
    host_.bound.erase(port_);
}

void Socket::close()
{
    if (port_ != 0) {
        journal_.note("close " + std::to_string(port_));
        host_.bound.erase(port_);
        port_ = 0;
    }
}

void Socket::bind(int port)
{
    close();
    journal_.note("bind " + std::to_string(port));
    if (port < 0 || port > highest_port) {
        throw Failure("Invalid argument", invalid_argument, "bind");
    }
    int const wanted = port == 0 ? free_port() : port;
    if (host_.taken.contains(wanted) || host_.bound.contains(wanted)) {
        throw Failure(text::address_in_use, in_use, "bind");
    }
    host_.bound.emplace(wanted, this);
    port_ = wanted;
    ++bindings_;
    segment_.note_bound(host_, port);
}

void Socket::send(std::string_view datagram, std::string_view host, int port)
{
    journal_.note("send " + std::string(datagram));
    require_network(port);
    if (datagram.size() > Segment::largest_datagram) {
        throw Failure("Message too long", message_too_long, "send");
    }
    segment_.send(host_, port_, {host, port}, datagram);
}

void Socket::require_network(int port) const
{
    if (port_ == 0) {
        throw Failure("Transport endpoint is not connected", not_connected, "send");
    }
    if (!host_.link) {
        throw Failure(text::no_route_to_host, no_route, "send");
    }
    if (port <= 0 || port > highest_port) {
        throw Failure("Invalid argument", invalid_argument, "send");
    }
    if (host_.send_failure && host_.sends_before_failure-- <= 0) {
        throw *host_.send_failure;
    }
}

std::string Socket::local_address() const
{
    return "192.168.0." + std::to_string(host_.number);
}

void Socket::receive(std::string const& datagram)
{
    life_.enter([&] {
        if (arrived) {
            arrived(datagram);
        }
    });
}

void Socket::fail(int number, std::string const& description)
{
    life_.enter([&] {
        if (failed) {
            failed(number, description);
        }
    });
}

int Socket::free_port() const
{
    int port = first_free_port;
    while (host_.bound.contains(port) || host_.taken.contains(port)) {
        ++port;
    }
    return port;
}

} // namespace sim
