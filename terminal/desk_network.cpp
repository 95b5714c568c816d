#include "terminal/desk_network.h"

#include "network/wire.h"
#include "qt/broadcast_route.h"
#include "qt/desk_socket.h"
#include "text/failure.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QString>
#include <QTimer>

#include <algorithm>
#include <arpa/inet.h>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

namespace terminal {

namespace {

constexpr int patience_ms = 1000;
constexpr auto everybody = "255.255.255.255";

/// A socket of the kernel's, closed at the end.
class PlainSocket {
public:
    PlainSocket() : number_(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {}
    ~PlainSocket() { ::close(number_); }
    PlainSocket(PlainSocket const&) = delete;
    PlainSocket& operator=(PlainSocket const&) = delete;

    [[nodiscard]] int number() const { return number_; }

private:
    int number_;
};

bool is_virtual(QString const& name)
{
    QFileInfo const entry(QStringLiteral("/sys/class/net/") + name);
    return entry.symLinkTarget().contains(QStringLiteral("/virtual/"));
}

tap::Interface interface_of(ifaddrs const& entry)
{
    auto const has = [&](unsigned flag) { return (entry.ifa_flags & flag) != 0; };
    return {.name = entry.ifa_name,
            .address = {},
            .up = has(IFF_UP),
            .carrier = has(IFF_RUNNING),
            .broadcasts = has(IFF_BROADCAST),
            .loopback = has(IFF_LOOPBACK),
            .is_virtual = is_virtual(QString::fromLocal8Bit(entry.ifa_name))};
}

std::string address_of(ifaddrs const& entry)
{
    return qt::dotted(reinterpret_cast<sockaddr_in const*>(entry.ifa_addr)->sin_addr);
}

/// The own address that the kernel would put on a broadcast; empty when it knows no way.
std::string address_by_route()
{
    PlainSocket const socket;
    int const yes = 1;
    setsockopt(socket.number(), SOL_SOCKET, SO_BROADCAST, &yes, sizeof yes);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_BROADCAST);
    address.sin_port = htons(1);
    socklen_t size = sizeof address;
    auto* const plain = reinterpret_cast<sockaddr*>(&address);
    if (::connect(socket.number(), plain, size) != 0 ||
        ::getsockname(socket.number(), plain, &size) != 0) {
        return {};
    }
    return qt::dotted(address.sin_addr);
}

std::string interface_with(std::vector<tap::Interface> const& interfaces,
                           std::string const& address)
{
    auto const found = std::ranges::find(interfaces, address, &tap::Interface::address);
    return found == interfaces.end() ? std::string() : found->name;
}

} // namespace

std::vector<tap::Interface> look_at_interfaces()
{
    std::vector<tap::Interface> all;
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) {
        return all;
    }
    std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> const owned(list, &freeifaddrs);
    for (ifaddrs const* entry = list; entry != nullptr; entry = entry->ifa_next) {
        auto known = std::ranges::find(all, entry->ifa_name, &tap::Interface::name);
        if (known == all.end()) {
            all.push_back(interface_of(*entry));
            known = all.end() - 1;
        }
        bool const has_address =
            entry->ifa_addr != nullptr && entry->ifa_addr->sa_family == AF_INET;
        if (has_address && known->address.empty()) {
            known->address = address_of(*entry);
        }
    }
    return all;
}

tap::WayOut look_at_way_out(std::vector<tap::Interface> const& interfaces)
{
    if (auto const address = address_by_route(); !address.empty()) {
        return {.interface = interface_with(interfaces, address), .by_route = true};
    }
    auto const own = qt::broadcast_interface();
    return {.interface = own.index == 0 ? "" : interface_with(interfaces, qt::dotted(own.address))};
}

tap::Echo try_echo(int port)
{
    using State = tap::Echo::State;
    QEventLoop wait;
    bool heard = false;
    qt::DeskSocket listening(qt::DeskSocket::Role::listening);
    qt::DeskSocket sending(qt::DeskSocket::Role::sending);
    listening.arrived = [&](std::string const& datagram) {
        if (datagram == network::wire::probe) {
            heard = true;
            wait.quit();
        }
    };
    try {
        listening.bind(port);
    } catch (text::Failure const& failure) {
        bool const is_held = failure.text == text::address_in_use;
        return {State::not_tried, is_held ? "a program listens on the port" : failure.text};
    }
    try {
        sending.bind(0);
        sending.send(network::wire::probe, everybody, port);
    } catch (text::Failure const& failure) {
        return {State::refused, failure.text};
    }
    QTimer::singleShot(patience_ms, &wait, &QEventLoop::quit);
    wait.exec();
    return {heard ? State::heard : State::not_heard};
}

tap::ReceiveBuffer try_buffer()
{
    PlainSocket const socket;
    int const wanted = qt::DeskSocket::wanted_buffer;
    int granted = 0;
    socklen_t size = sizeof granted;
    // Not by force, as root might: it is about the messenger of an ordinary user.
    setsockopt(socket.number(), SOL_SOCKET, SO_RCVBUF, &wanted, sizeof wanted);
    if (getsockopt(socket.number(), SOL_SOCKET, SO_RCVBUF, &granted, &size) != 0) {
        granted = 0;
    }
    return {.wanted = wanted, .granted = granted};
}

} // namespace terminal
