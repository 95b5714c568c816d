#include "tap/checks/network.h"

#include <algorithm>

namespace tap {

namespace {

using Health = Finding::Health;

constexpr auto until_restart = " # until the machine is started anew";

bool carries_broadcasts(Interface const& interface)
{
    return interface.up && interface.carrier && interface.broadcasts && !interface.loopback &&
           !interface.address.empty();
}

/// The one that most likely should carry them.
std::vector<Interface>::const_iterator likely(std::vector<Interface> const& interfaces)
{
    auto const real = std::ranges::find_if(interfaces, [](Interface const& interface) {
        return !interface.loopback && !interface.is_virtual;
    });
    return real != interfaces.end() ? real
                                    : std::ranges::find(interfaces, false, &Interface::loopback);
}

Finding without_interface(std::vector<Interface> const& interfaces)
{
    std::string const check = "interface";
    auto const wired = likely(interfaces);
    if (wired == interfaces.end()) {
        return {check, Health::wrong, "this machine has no network interface",
                "ip link # nothing but the loopback: put in a network card"};
    }
    auto const& name = wired->name;
    if (!wired->up) {
        return {check, Health::wrong, name + " is switched off",
                "sudo ip link set dev " + name + " up"};
    }
    if (!wired->carrier) {
        return {check, Health::wrong, name + " has no link",
                "# plug in the cable, or join the wireless network"};
    }
    if (wired->address.empty()) {
        return {check, Health::wrong, name + " has no address",
                "nmcli device connect " + name + " || sudo dhclient " + name};
    }
    return {check, Health::wrong, name + " carries no broadcasts", "ip link show dev " + name};
}

std::string list_of(std::vector<Interface> const& interfaces)
{
    std::string list;
    for (auto const& interface : interfaces) {
        if (carries_broadcasts(interface)) {
            list += (list.empty() ? "" : ", ") + interface.name + " (" + interface.address + ")";
        }
    }
    return list;
}

} // namespace

Finding check_interfaces(std::vector<Interface> const& interfaces)
{
    auto const list = list_of(interfaces);
    return list.empty() ? without_interface(interfaces) : Finding{"interface", Health::well, list};
}

Finding check_route(std::vector<Interface> const& interfaces, WayOut const& way_out)
{
    std::string const check = "broadcasts";
    if (way_out.interface.empty()) {
        return {check, Health::wrong, "nothing leads to 255.255.255.255",
                check_interfaces(interfaces).remedy};
    }
    auto const better = std::ranges::find_if(interfaces, [](Interface const& interface) {
        return carries_broadcasts(interface) && !interface.is_virtual;
    });
    auto const taken = std::ranges::find(interfaces, way_out.interface, &Interface::name);
    if (taken != interfaces.end() && taken->is_virtual && better != interfaces.end()) {
        return {check, Health::warning,
                "they leave by " + taken->name + ", which is no network of an office",
                "sudo ip route replace 255.255.255.255/32 dev " + better->name + until_restart};
    }
    return {check, Health::well,
            "they leave by " + way_out.interface +
                (way_out.by_route ? "" : ", the first that can: there is no route for them")};
}

Finding check_echo(Echo const& echo, Finding const& interface, Finding const& firewall)
{
    std::string const check = "echo";
    switch (echo.state) {
    case Echo::State::heard:
        return {check, Health::well, "a broadcast was heard by its own sender"};
    case Echo::State::not_heard:
        return {check, Health::wrong, "a broadcast left and was not heard by its own sender",
                firewall.remedy.empty() ? "sudo nft list ruleset" : firewall.remedy};
    case Echo::State::refused:
        return {check, Health::wrong, "a broadcast could not be sent: " + echo.reason,
                interface.remedy.empty() ? "ip route get 255.255.255.255" : interface.remedy};
    case Echo::State::not_tried:
        break;
    }
    return {check, Health::unknown, "not tried: " + echo.reason};
}

} // namespace tap
