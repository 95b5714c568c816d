#include "terminal/ear.h"

#include "tap/ip_packet.h"

#include "qt/broadcast_route.h"
#include "qt/desk_socket.h"
#include "text/failure.h"

#include <array>
#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace terminal {

namespace {

constexpr int wanted_buffer = 4 * 1024 * 1024;
constexpr int last_port = 65'535;
constexpr std::size_t largest_packet = 65'536;
/// Beside a messenger it gets what is for other programs, too.
constexpr int most_of_others = 1024;

int opened(int kind, int protocol)
{
    int const socket = ::socket(AF_INET, kind | SOCK_CLOEXEC | SOCK_NONBLOCK, protocol);
    if (socket >= 0 &&
        setsockopt(socket, SOL_SOCKET, SO_RCVBUFFORCE, &wanted_buffer, sizeof wanted_buffer) != 0) {
        setsockopt(socket, SOL_SOCKET, SO_RCVBUF, &wanted_buffer, sizeof wanted_buffer);
    }
    return socket;
}

} // namespace

Ear::Ear(int port) : port_(port)
{
    try {
        hold_port();
    } catch (text::Failure const& failure) {
        if (failure.text != text::address_in_use) {
            throw;
        }
        listen_beside();
    }
}

Ear::~Ear()
{
    ::close(socket_);
}

void Ear::hold_port()
{
    if (port_ < 0 || port_ > last_port) { // The folder's settings may say anything.
        throw qt::failure_of(EINVAL);
    }
    socket_ = opened(SOCK_DGRAM, 0);
    if (socket_ < 0) {
        throw qt::failure_of(errno);
    }
    sockaddr_in everywhere{};
    everywhere.sin_family = AF_INET;
    everywhere.sin_port = htons(static_cast<in_port_t>(port_));
    if (::bind(socket_, reinterpret_cast<sockaddr const*>(&everywhere), sizeof everywhere) != 0) {
        int const error = errno;
        ::close(socket_);
        throw qt::failure_of(error);
    }
}

void Ear::listen_beside()
{
    // It gets a copy of each packet for this machine, put together from its fragments.
    socket_ = opened(SOCK_RAW, IPPROTO_UDP);
    if (socket_ < 0) {
        throw qt::failure_of(EADDRINUSE);
    }
    beside_ = true;
}

std::optional<tap::Datagram> Ear::take()
{
    static std::array<char, largest_packet> storage;
    for (int tried = 0; tried < most_of_others; ++tried) {
        sockaddr_in from{};
        socklen_t size = sizeof from;
        auto const length = recvfrom(socket_, storage.data(), storage.size(), 0,
                                     reinterpret_cast<sockaddr*>(&from), &size);
        if (length < 0 && errno == EINTR) {
            continue;
        }
        if (length < 0 && errno == EAGAIN) {
            return std::nullopt;
        }
        if (length < 0) {
            throw qt::failure_of(errno);
        }
        std::string_view const bytes(storage.data(), static_cast<std::size_t>(length));
        auto datagram = beside_ ? tap::datagram_in(bytes)
                                : tap::Datagram{.from_port = ntohs(from.sin_port),
                                                .to_port = port_,
                                                .bytes = std::string(bytes)};
        if (!datagram || datagram->to_port != port_) {
            continue; // Somebody else's.
        }
        datagram->from = qt::dotted(from.sin_addr);
        datagram->when = std::chrono::duration_cast<std::chrono::microseconds>(
            std::chrono::steady_clock::now() - begin_);
        return datagram;
    }
    return std::nullopt; // The rest at the next look: there is more to wait for than this socket.
}

} // namespace terminal
