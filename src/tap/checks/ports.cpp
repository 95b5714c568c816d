#include "tap/checks/ports.h"

namespace tap {

namespace {

using Health = Finding::Health;

constexpr int usual_listening = 4111;
constexpr int usual_sending = 4112;
constexpr int last_port = 65535;
constexpr auto in_the_settings =
    "# in the messenger: Settings, \"General \", the two buttons of the ports";

/// Ends whoever holds the port; only root sees who it is.
std::string end_holder(Port const& port)
{
    return "sudo kill $(sudo ss -Hlunp 'sport = :" + std::to_string(port.number) +
           "' | grep -o 'pid=[0-9]*' | cut -c5-)";
}

Finding free_or_held(std::string const& check, Port const& port)
{
    auto const number = std::to_string(port.number);
    if (port.number <= 0 || port.number > last_port) {
        return {check, Health::wrong, number + " is no port", in_the_settings};
    }
    if (!port.holder) {
        return {check, Health::well, number + " is free"};
    }
    auto const& holder = *port.holder;
    if (holder.is_messenger) {
        return {check, Health::well,
                number + " is held by the messenger, process " + std::to_string(holder.process)};
    }
    if (holder.process == 0) {
        return {check, Health::wrong, number + " is held by another user's program",
                end_holder(port)};
    }
    return {check, Health::wrong,
            number + " is held by " + holder.name + ", process " + std::to_string(holder.process) +
                "; the messenger shares no port",
            "kill " + std::to_string(holder.process)};
}

Finding as_others(Port const& listening, Port const& sending)
{
    std::string const check = "pair of ports";
    auto const pair = std::to_string(listening.number) + " and " + std::to_string(sending.number);
    if (listening.number == sending.number) {
        return {check, Health::wrong, "both ports are " + std::to_string(listening.number),
                in_the_settings};
    }
    if (listening.number == usual_listening && sending.number == usual_sending) {
        return {check, Health::well, pair + ", as everywhere"};
    }
    return {check, Health::warning,
            pair + " instead of 4111 and 4112: only those who have the same pair hear each other",
            in_the_settings};
}

Finding without_loss(Holder const& messenger)
{
    return {"lost datagrams", Health::warning,
            "the kernel has dropped " + std::to_string(messenger.drops) +
                " datagrams for the running messenger, for lack of room",
            "sudo sysctl -w net.core.rmem_max=4194304, then start the messenger anew"};
}

} // namespace

Findings check_ports(Port const& listening, Port const& sending)
{
    Findings findings{free_or_held("listening port", listening),
                      free_or_held("sending port", sending), as_others(listening, sending)};
    auto const& holder = listening.holder;
    if (holder && holder->is_messenger && holder->drops > 0) {
        findings.push_back(without_loss(*holder));
    }
    return findings;
}

} // namespace tap
