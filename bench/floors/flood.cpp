// Sends datagrams at a steady rate to one host of a private network; a rate of 0 is full speed.
// Tells how many left and how long it took.
//
//     bench_flood ADDRESS PORT COUNT RATE SIZE

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/socket.h>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

constexpr long most_datagrams = 1'000'000;
constexpr auto most_time = std::chrono::seconds(60);

struct Flood {
    sockaddr_in to{};
    long count = 0;
    double rate = 0;
    std::size_t size = 0;
};

/// Foreign words, with a number in front; no row of any peer's begins so.
std::string datagram_of(long number, std::size_t size)
{
    auto text = std::to_string(number);
    text.resize(std::max(text.size(), size), '.');
    return text;
}

long sent_by(Flood const& flood, int socket)
{
    auto const begin = Clock::now();
    long sent = 0;
    for (long number = 0; number < flood.count; ++number) {
        if (flood.rate > 0) {
            auto const due =
                std::chrono::duration<double>(static_cast<double>(number) / flood.rate);
            std::this_thread::sleep_until(begin + std::chrono::duration_cast<Clock::duration>(due));
        }
        auto const text = datagram_of(number, flood.size);
        auto const* const to = reinterpret_cast<sockaddr const*>(&flood.to);
        auto const left = sendto(socket, text.data(), text.size(), 0, to, sizeof flood.to);
        sent += left >= 0 ? 1 : 0;
        if (Clock::now() - begin > most_time) {
            break;
        }
    }
    return sent;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 6) {
        std::fputs("usage: bench_flood ADDRESS PORT COUNT RATE SIZE\n", stderr);
        return 2;
    }
    Flood flood;
    flood.to.sin_family = AF_INET;
    flood.to.sin_port = htons(static_cast<in_port_t>(std::atoi(argv[2])));
    bool const is_address = inet_pton(AF_INET, argv[1], &flood.to.sin_addr) == 1;
    flood.count = std::clamp(std::atol(argv[3]), 0L, most_datagrams);
    flood.rate = std::atof(argv[4]);
    flood.size = static_cast<std::size_t>(std::clamp(std::atol(argv[5]), 0L, 65507L));
    int const socket = ::socket(AF_INET, SOCK_DGRAM, 0);
    if (!is_address || socket < 0) {
        std::perror("bench_flood");
        return 1;
    }
    auto const begin = Clock::now();
    auto const sent = sent_by(flood, socket);
    std::chrono::duration<double> const took = Clock::now() - begin;
    std::printf("%ld %.6f\n", sent, took.count());
    return 0;
}
