#include "tap/checks/firewall.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using tap::check_firewall;
using tap::Firewall;
using testing::HasSubstr;

using enum tap::Finding::Health;

constexpr int port = 4111;
constexpr auto all_closed =
    "table inet filter {\n\tchain input {\n\t\ttype filter hook input priority "
    "filter; policy drop;\n\t}\n}\n";

TEST(FirewallCheck, AClosedChainIsNamedAndTheRemedyOpensIt)
{
    auto const finding = check_firewall({.privileged = true, .rules = all_closed}, port);

    EXPECT_EQ(finding.health, wrong);
    EXPECT_THAT(finding.text, HasSubstr("inet filter input"));
    EXPECT_EQ(finding.remedy,
              "sudo nft insert rule inet filter input udp dport 4111 accept # until "
              "the machine is started anew");
}

TEST(FirewallCheck, RulesThatLetThePortInAreWell)
{
    EXPECT_EQ(check_firewall({.privileged = true, .rules = ""}, port).health, well);
}

TEST(FirewallCheck, WithoutPrivilegesTheRulesAreNotKnown)
{
    Firewall const hidden{.as_root = "sudo /app/vexlotap doctor"};
    Firewall const ufw{.as_root = hidden.as_root, .ufw_enabled = true};
    Firewall const firewalld{.as_root = hidden.as_root, .firewalld_runs = true};

    for (Firewall const& each : {hidden, ufw, firewalld}) {
        auto const finding = check_firewall(each, port);

        EXPECT_EQ(finding.health, unknown);
        EXPECT_EQ(finding.remedy, hidden.as_root);
    }
    EXPECT_EQ(check_firewall({.privileged = true}, port).health, well);
}

TEST(FirewallCheck, UfwIsAskedFirst)
{
    Firewall const without{
        .echo = false, .ufw_enabled = true, .ufw = "Status: active\n\n22/tcp ALLOW Anywhere\n"};
    Firewall const with{.ufw_enabled = true, .ufw = "Status: active\n\n4111/udp ALLOW Anywhere\n"};
    Firewall const against{
        .echo = false, .ufw_enabled = true, .ufw = "Status: active\n\n4111/udp DENY Anywhere\n"};

    EXPECT_EQ(check_firewall(without, port).remedy, "sudo ufw allow 4111/udp");
    EXPECT_EQ(check_firewall(without, port).health, wrong);
    EXPECT_EQ(check_firewall(against, port).health, wrong);
    EXPECT_EQ(check_firewall(with, port).health, well);
    EXPECT_EQ(check_firewall({.ufw_enabled = true, .ufw = "4111 ALLOW Anywhere\n"}, port).health,
              well);
    EXPECT_EQ(check_firewall({.ufw_enabled = true}, port).health, unknown);
    EXPECT_EQ(check_firewall({.ufw_enabled = true, .ufw = "Status: inactive\n"}, port).health,
              well);
}

TEST(FirewallCheck, FirewalldSaysItself)
{
    EXPECT_EQ(check_firewall({.firewalld_runs = true, .firewalld_lets_in = true}, port).health,
              well);
    EXPECT_EQ(check_firewall({.firewalld_runs = true}, port).health, unknown);
    auto const closed =
        check_firewall({.echo = false, .firewalld_runs = true, .firewalld_lets_in = false}, port);
    EXPECT_EQ(closed.health, wrong);
    EXPECT_THAT(closed.remedy, HasSubstr("--add-port=4111/udp"));
}

TEST(FirewallCheck, ABroadcastThatCameInTellsMoreThanAnyRule)
{
    auto const finding = check_firewall({.echo = true, .rules = all_closed}, port);

    EXPECT_EQ(finding.health, well);
    EXPECT_THAT(finding.text, HasSubstr("yet a broadcast came in"));
    EXPECT_EQ(finding.remedy, "");
    EXPECT_EQ(check_firewall({.echo = false, .rules = all_closed}, port).health, wrong);
    EXPECT_EQ(check_firewall({.rules = all_closed}, port).health, wrong);
}

TEST(FirewallCheck, WhatUfwOrFirewalldDoesNotNameIsAWarningWhileNothingWasTried)
{
    // A range of addresses, a service, another zone: it may come in all the same.
    Firewall const ufw{.ufw_enabled = true,
                       .ufw = "Status: active\n\nAnywhere ALLOW 192.168.0.0/16\n"};

    EXPECT_EQ(check_firewall(ufw, port).health, warning);
    EXPECT_EQ(check_firewall({.firewalld_runs = true, .firewalld_lets_in = false}, port).health,
              warning);
}

} // namespace
