#include "qt/broadcast_route.h"

#include <arpa/inet.h>
#include <array>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>

namespace qt {

namespace {

constexpr unsigned wanted_flags = IFF_UP | IFF_RUNNING | IFF_BROADCAST;

bool can_broadcast(ifaddrs const& entry)
{
    return entry.ifa_addr != nullptr && entry.ifa_addr->sa_family == AF_INET &&
           (entry.ifa_flags & (wanted_flags | IFF_LOOPBACK)) == wanted_flags;
}

} // namespace

BroadcastInterface broadcast_interface()
{
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) {
        return {};
    }
    std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> const owned(list, &freeifaddrs);
    for (ifaddrs const* entry = list; entry != nullptr; entry = entry->ifa_next) {
        if (can_broadcast(*entry)) {
            auto const* const address = reinterpret_cast<sockaddr_in const*>(entry->ifa_addr);
            return {.index = static_cast<int>(if_nametoindex(entry->ifa_name)),
                    .address = address->sin_addr};
        }
    }
    return {};
}

std::string dotted(in_addr address)
{
    std::array<char, INET_ADDRSTRLEN> text{};
    inet_ntop(AF_INET, &address, text.data(), text.size());
    return text.data();
}

} // namespace qt
