#include "tap/checks/firewall.h"

#include "tap/checks/rule_set.h"

#include <sstream>
#include <string_view>

namespace tap {

namespace {

using Health = Finding::Health;

bool holds(std::string_view line, std::string_view words)
{
    return line.find(words) != std::string_view::npos;
}

bool ufw_lets_in(std::string const& status, std::string const& port)
{
    std::istringstream lines(status);
    for (std::string line; std::getline(lines, line);) {
        auto const to = line.substr(0, line.find(' '));
        bool const of_the_port = to == port || to == port + "/udp";
        if (holds(line, "Status: inactive") || (of_the_port && holds(line, "ALLOW"))) {
            return true;
        }
    }
    return false;
}

Finding of_ufw(Firewall const& firewall, std::string const& port)
{
    if (!firewall.ufw) {
        return {"firewall", Health::unknown, "ufw is on; its rules are root's to see",
                firewall.as_root};
    }
    if (ufw_lets_in(*firewall.ufw, port)) {
        return {"firewall", Health::well, "ufw lets udp port " + port + " in"};
    }
    return {"firewall", Health::wrong, "ufw has no rule for udp port " + port,
            "sudo ufw allow " + port + "/udp"};
}

Finding of_firewalld(Firewall const& firewall, std::string const& port)
{
    if (!firewall.firewalld_lets_in) {
        return {"firewall", Health::unknown, "firewalld runs and did not say what it lets in",
                firewall.as_root};
    }
    if (*firewall.firewalld_lets_in) {
        return {"firewall", Health::well, "firewalld lets udp port " + port + " in"};
    }
    auto const open = "sudo firewall-cmd --permanent --add-port=" + port + "/udp";
    return {"firewall", Health::wrong, "firewalld does not let udp port " + port + " in",
            open + " && sudo firewall-cmd --reload"};
}

Finding by_rules(Firewall const& firewall, int port)
{
    auto const number = std::to_string(port);
    if (firewall.ufw_enabled) {
        return of_ufw(firewall, number);
    }
    if (firewall.firewalld_runs) {
        return of_firewalld(firewall, number);
    }
    if (firewall.rules) {
        auto const closed = closed_chain(*firewall.rules, port);
        if (closed) {
            return {"firewall", Health::wrong,
                    "the chain " + closed->table + " " + closed->name + " keeps udp port " +
                        number + " out",
                    "sudo nft insert rule " + closed->table + " " + closed->name + " udp dport " +
                        number + " accept # until the machine is started anew"};
        }
        return {"firewall", Health::well, "no rule keeps udp port " + number + " out"};
    }
    if (firewall.privileged) {
        return {"firewall", Health::well, "there is none"};
    }
    return {"firewall", Health::unknown, "the rules are root's to see", firewall.as_root};
}

} // namespace

Finding check_firewall(Firewall const& firewall, int port)
{
    auto finding = by_rules(firewall, port);
    // There are more ways to let a datagram in than are read here: one that came in tells more.
    if (finding.health == Health::wrong && firewall.echo == true) {
        return {"firewall", Health::well, finding.text + ", yet a broadcast came in"};
    }
    if (finding.health == Health::wrong && !firewall.echo && firewall.has_manager()) {
        finding.health = Health::warning;
    }
    return finding;
}

} // namespace tap
