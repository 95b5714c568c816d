#include "tap/ip_packet.h"

namespace tap {

namespace {

constexpr std::size_t least_ip_header = 20;
constexpr std::size_t udp_header = 8;

/// Two bytes as the network writes a number.
int number_at(std::string_view bytes, std::size_t place)
{
    auto const high = static_cast<unsigned char>(bytes.at(place));
    auto const low = static_cast<unsigned char>(bytes.at(place + 1));
    return high * 256 + low;
}

} // namespace

std::optional<Datagram> datagram_in(std::string_view packet)
{
    if (packet.empty()) {
        return std::nullopt;
    }
    auto const words = static_cast<unsigned char>(packet.front()) % 16U;
    auto const ip_header = words * std::size_t{4};
    if (ip_header < least_ip_header || packet.size() < ip_header + udp_header) {
        return std::nullopt;
    }
    auto const udp = packet.substr(ip_header);
    auto const length = static_cast<std::size_t>(number_at(udp, 4));
    if (length < udp_header || length > udp.size()) {
        return std::nullopt;
    }
    return Datagram{.from_port = number_at(udp, 0),
                    .to_port = number_at(udp, 2),
                    .bytes = std::string(udp.substr(udp_header, length - udp_header))};
}

} // namespace tap
