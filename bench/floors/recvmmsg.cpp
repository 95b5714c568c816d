// The fastest plain way to take datagrams: recvmmsg in a loop, and nothing kept.
//
//     floor_recvmmsg PORT BUFFER

#include <array>
#include <cstdlib>
#include <netinet/in.h>
#include <sys/socket.h>
#include <vector>

namespace {

constexpr std::size_t batch = 32;
constexpr std::size_t largest_datagram = 65536;

int listening_socket(int port, int buffer)
{
    int const socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (setsockopt(socket, SOL_SOCKET, SO_RCVBUFFORCE, &buffer, sizeof buffer) != 0) {
        setsockopt(socket, SOL_SOCKET, SO_RCVBUF, &buffer, sizeof buffer);
    }
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(port));
    auto const bound = bind(socket, reinterpret_cast<sockaddr const*>(&address), sizeof address);
    return bound == 0 ? socket : -1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        return 2;
    }
    int const socket = listening_socket(std::atoi(argv[1]), std::atoi(argv[2]));
    std::vector<char> storage(batch * largest_datagram);
    std::array<iovec, batch> parts{};
    std::array<mmsghdr, batch> messages{};
    for (std::size_t slot = 0; slot < batch; ++slot) {
        parts[slot] = {storage.data() + slot * largest_datagram, largest_datagram};
        messages[slot].msg_hdr.msg_iov = &parts[slot];
        messages[slot].msg_hdr.msg_iovlen = 1;
    }
    while (recvmmsg(socket, messages.data(), batch, MSG_WAITFORONE, nullptr) > 0) {
    }
    return 1; // It is ended by a signal only.
}
