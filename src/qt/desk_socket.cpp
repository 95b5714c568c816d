#include "qt/desk_socket.h"

#include "qt/broadcast_route.h"

#include <QSysInfo>
#include <QtDebug>

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace qt {

namespace {

constexpr std::size_t largest_datagram = 65536;
constexpr std::size_t batch = 32;
/// Datagrams taken at one wake-up; a flood beyond that waits for the next turn of the event loop.
constexpr int most_at_once = 65536;

sockaddr_in address_of(in_addr_t host, int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = host;
    address.sin_port = htons(static_cast<in_port_t>(port));
    return address;
}

int send_by(int socket, std::string_view datagram, sockaddr_in to, int interface_index)
{
    iovec part{const_cast<char*>(datagram.data()), datagram.size()};
    msghdr message{};
    message.msg_name = &to;
    message.msg_namelen = sizeof to;
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> control{};
    if (interface_index != 0) {
        message.msg_control = control.data();
        message.msg_controllen = control.size();
        cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = IPPROTO_IP;
        header->cmsg_type = IP_PKTINFO;
        header->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
        in_pktinfo info{};
        info.ipi_ifindex = interface_index;
        std::memcpy(CMSG_DATA(header), &info, sizeof info);
    }
    return sendmsg(socket, &message, MSG_NOSIGNAL) < 0 ? errno : 0;
}

[[noreturn]] void refuse(int error)
{
    throw failure_of(error);
}

} // namespace

text::Failure failure_of(int error)
{
    switch (error) {
    case EADDRINUSE:
        return {text::address_in_use, error, {}};
    case ENETUNREACH:
    case EHOSTUNREACH:
    case ENETDOWN:
    case EADDRNOTAVAIL:
        return {text::no_route_to_host, error, {}};
    default:
        return {strerrordesc_np(error), error, {}};
    }
}

DeskSocket::~DeskSocket()
{
    close();
}

void DeskSocket::close()
{
    notifier_.reset();
    if (socket_ >= 0) {
        ::close(std::exchange(socket_, -1));
    }
}

void DeskSocket::bind(int port)
{
    close();
    if (port < 0 || port > 65535) {
        refuse(EINVAL);
    }
    socket_ = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (socket_ < 0) {
        refuse(errno);
    }
    int const yes = 1;
    setsockopt(socket_, SOL_SOCKET, SO_BROADCAST, &yes, sizeof yes);
    // Not shared: a second program on the port is to be noticed.
    sockaddr_in const everywhere = address_of(htonl(INADDR_ANY), port);
    if (::bind(socket_, reinterpret_cast<sockaddr const*>(&everywhere), sizeof everywhere) != 0) {
        int const error = errno;
        close();
        refuse(error);
    }
    if (role_ == Role::listening) {
        listen();
    }
}

void DeskSocket::listen()
{
    // More than the system's limit is granted to a privileged process only; others get what the
    // limit allows.
    if (setsockopt(socket_, SOL_SOCKET, SO_RCVBUFFORCE, &wanted_buffer, sizeof wanted_buffer) !=
        0) {
        setsockopt(socket_, SOL_SOCKET, SO_RCVBUF, &wanted_buffer, sizeof wanted_buffer);
    }
    qDebug("%d bytes of datagrams may wait", granted_buffer());
    notifier_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { drain(); });
}

int DeskSocket::granted_buffer() const
{
    int granted = 0;
    socklen_t size = sizeof granted;
    return socket_ >= 0 && getsockopt(socket_, SOL_SOCKET, SO_RCVBUF, &granted, &size) == 0
               ? granted
               : 0;
}

void DeskSocket::fall_silent()
{
    notifier_.reset();
}

void DeskSocket::drain()
{
    static std::vector<char> storage(batch * largest_datagram);
    std::array<iovec, batch> parts{};
    std::array<mmsghdr, batch> messages{};
    for (std::size_t slot = 0; slot < batch; ++slot) {
        parts[slot] = {storage.data() + slot * largest_datagram, largest_datagram};
        messages[slot].msg_hdr.msg_iov = &parts[slot];
        messages[slot].msg_hdr.msg_iovlen = 1;
    }
    for (int taken = 0; taken < most_at_once && socket_ >= 0;) {
        int const count = recvmmsg(socket_, messages.data(), batch, MSG_DONTWAIT, nullptr);
        if (count <= 0) {
            if (count < 0 && errno != EAGAIN && errno != EINTR && failed) {
                failed(errno, strerrordesc_np(errno));
            }
            return;
        }
        for (std::size_t slot = 0; slot < static_cast<std::size_t>(count); ++slot) {
            arrived(std::string(static_cast<char const*>(parts[slot].iov_base),
                                messages[slot].msg_len));
        }
        taken += count;
    }
}

void DeskSocket::send(std::string_view datagram, std::string_view host, int port)
{
    if (socket_ < 0) {
        refuse(ENOTCONN);
    }
    if (port < 0 || port > 65535) {
        refuse(EINVAL);
    }
    auto const to = address_of(inet_addr(std::string(host).c_str()), port);
    int error = send_by(socket_, datagram, to, 0);
    if (error == ENETUNREACH) {
        // An office without a gateway has no route for broadcasts: the running interface takes
        // them.
        auto const way_out = broadcast_interface();
        error = way_out.index != 0 ? send_by(socket_, datagram, to, way_out.index) : error;
    }
    if (error != 0) {
        refuse(error);
    }
}

int DeskSocket::state() const
{
    return socket_ >= 0 ? state_bound : state_closed;
}

std::string DeskSocket::local_address() const
{
    return dotted(broadcast_interface().address);
}

std::string DeskSocket::local_host_name() const
{
    return QSysInfo::machineHostName().toStdString();
}

} // namespace qt
