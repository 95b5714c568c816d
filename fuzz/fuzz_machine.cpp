#include "tap/checks/bound_ports.h"
#include "tap/checks/rule_set.h"
#include "tap/ip_packet.h"

#include "fuzz/check.h"
#include "fuzz/target.h"

namespace {

using fuzz::check;

constexpr int usual_port = 4111;
constexpr std::size_t least_packet = 28; // An IP header and a UDP one.

bool is_port(int number)
{
    return number >= 0 && number <= 65'535;
}

void check_rules(std::string_view rules)
{
    auto const closed = tap::closed_chain(rules, usual_port);
    if (closed) {
        bool const is_quoted = closed->name.find('"') != std::string::npos;
        check(is_quoted || rules.find(closed->name) != rules.npos,
              "a chain of the rules is closed");
        check(rules.find("input") != rules.npos, "it is one of what comes in");
    }
}

void check_table(std::string_view table)
{
    for (tap::BoundPort const& each : tap::bound_ports(table)) {
        check(is_port(each.port), "a bound port is a port");
    }
}

void check_packet(std::string_view packet)
{
    auto const datagram = tap::datagram_in(packet);
    if (datagram) {
        check(is_port(datagram->from_port) && is_port(datagram->to_port), "both are ports");
        check(datagram->bytes.size() + least_packet <= packet.size(), "no byte is from elsewhere");
        check(packet.find(datagram->bytes) != packet.npos, "the bytes are the packet's");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    auto const told = fuzz::as_text(bytes, size);
    check_rules(told);
    check_table(told);
    check_packet(told);
    return 0;
}
