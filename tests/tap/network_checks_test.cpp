#include "tap/checks/buffer.h"
#include "tap/checks/network.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace {

using tap::check_interfaces;
using tap::check_route;
using tap::Echo;
using tap::Finding;
using tap::Interface;
using testing::HasSubstr;
using testing::Not;

using enum tap::Finding::Health;

Interface cable()
{
    return {.name = "eth0", .address = "10.0.0.5", .up = true, .carrier = true, .broadcasts = true};
}

Interface loopback()
{
    return {.name = "lo", .address = "127.0.0.1", .up = true, .carrier = true, .loopback = true};
}

Interface bridge()
{
    auto interface = cable();
    interface.name = "docker0";
    interface.address = "172.17.0.1";
    interface.is_virtual = true;
    return interface;
}

TEST(InterfaceCheck, ACableWithAnAddressIsWell)
{
    auto const finding = check_interfaces({loopback(), cable()});

    EXPECT_EQ(finding.health, well);
    EXPECT_EQ(finding.text, "eth0 (10.0.0.5)");
}

TEST(InterfaceCheck, TheLoopbackAloneIsNoNetwork)
{
    EXPECT_EQ(check_interfaces({loopback()}).health, wrong);
}

TEST(InterfaceCheck, WhatIsSwitchedOffIsSwitchedOn)
{
    auto off = cable();
    off.up = false;

    auto const finding = check_interfaces({loopback(), off});

    EXPECT_EQ(finding.health, wrong);
    EXPECT_EQ(finding.remedy, "sudo ip link set dev eth0 up");
}

TEST(InterfaceCheck, InAContainerTheVirtualInterfaceIsTheOne)
{
    auto off = bridge();
    off.up = false;
    auto cable_off = cable();
    cable_off.up = false;

    EXPECT_EQ(check_interfaces({loopback(), off}).remedy, "sudo ip link set dev docker0 up");
    EXPECT_EQ(check_interfaces({off, cable_off}).remedy, "sudo ip link set dev eth0 up");
}

TEST(InterfaceCheck, ACableThatIsNotPluggedInIsTold)
{
    auto loose = cable();
    loose.carrier = false;

    EXPECT_THAT(check_interfaces({loose}).remedy, HasSubstr("plug in the cable"));
}

TEST(InterfaceCheck, AnInterfaceWithoutAnAddressAsksForOne)
{
    auto bare = cable();
    bare.address.clear();

    EXPECT_EQ(check_interfaces({bare}).remedy, "nmcli device connect eth0 || sudo dhclient eth0");
}

TEST(InterfaceCheck, AnInterfaceThatCannotBroadcastIsWrong)
{
    auto dumb = cable();
    dumb.broadcasts = false;

    EXPECT_THAT(check_interfaces({dumb}).text, HasSubstr("carries no broadcasts"));
}

TEST(InterfaceCheck, AllThatCanCarryABroadcastAreNamed)
{
    EXPECT_EQ(check_interfaces({loopback(), cable(), bridge()}).text,
              "eth0 (10.0.0.5), docker0 (" + bridge().address + ")");
}

TEST(RouteCheck, TheKernelsWayIsWell)
{
    auto const finding = check_route({cable()}, {.interface = "eth0", .by_route = true});

    EXPECT_EQ(finding.health, well);
    EXPECT_EQ(finding.text, "they leave by eth0");
}

TEST(RouteCheck, WithoutARouteTheMessengersOwnWayIsTold)
{
    EXPECT_THAT(check_route({cable()}, {.interface = "eth0"}).text,
                HasSubstr("the first that can"));
}

TEST(RouteCheck, NoWayAtAllIsWrong)
{
    auto off = cable();
    off.up = false;

    EXPECT_EQ(check_route({off}, {}).health, wrong);
    EXPECT_EQ(check_route({off}, {}).remedy, "sudo ip link set dev eth0 up");
}

TEST(RouteCheck, AContainersBridgeInThePlaceOfTheCableIsAWarning)
{
    auto const finding =
        check_route({bridge(), cable()}, {.interface = "docker0", .by_route = true});

    EXPECT_EQ(finding.health, warning);
    EXPECT_EQ(finding.remedy,
              "sudo ip route replace 255.255.255.255/32 dev eth0 # until the machine is started "
              "anew");
}

TEST(RouteCheck, ABridgeWhereNothingElseIsThereIsWell)
{
    EXPECT_EQ(check_route({bridge()}, {.interface = "docker0", .by_route = true}).health, well);
}

Finding where_all_else_is_well(Echo const& echo)
{
    return tap::check_echo(echo, {"interface", well, ""}, {"firewall", well, ""});
}

TEST(InterfaceCheck, TheLoopbackCarriesNothingWhateverItSaysOfItself)
{
    auto inner = cable();
    inner.loopback = true;

    EXPECT_EQ(check_interfaces({inner}).health, wrong);
    EXPECT_EQ(check_interfaces({inner}).remedy,
              "ip link # nothing but the loopback: put in a network card");
}

TEST(RouteCheck, WhatCarriesNothingIsNoBetterWay)
{
    auto off = cable();
    off.name = "eth9";
    off.up = false;

    EXPECT_THAT(check_route({off, bridge(), cable()}, {.interface = "docker0"}).remedy,
                HasSubstr("dev eth0 "));
}

TEST(RouteCheck, AnInterfaceThatIsNotOnTheListIsTaken)
{
    EXPECT_EQ(check_route({cable()}, {.interface = "wlan0", .by_route = true}).health, well);
}

TEST(EchoCheck, TellsWhatBecameOfTheBroadcast)
{
    EXPECT_EQ(where_all_else_is_well({Echo::State::heard}).health, well);
    EXPECT_EQ(where_all_else_is_well({Echo::State::not_heard}).health, wrong);
    EXPECT_EQ(where_all_else_is_well({Echo::State::refused, "No route to host."}).health, wrong);
    EXPECT_THAT(where_all_else_is_well({Echo::State::refused, "No route to host."}).text,
                HasSubstr("No route to host."));
    EXPECT_EQ(where_all_else_is_well({Echo::State::not_tried, "why"}).health, unknown);
    EXPECT_THAT(where_all_else_is_well({Echo::State::not_tried, "why"}).text, HasSubstr("why"));
}

TEST(EchoCheck, IsMendedByWhatMendsTheInterfaceOrTheFirewall)
{
    Finding const off{"interface", wrong, "", "switch it on"};
    Finding const closed{"firewall", wrong, "", "open it"};

    EXPECT_EQ(tap::check_echo({Echo::State::not_heard}, off, closed).remedy, "open it");
    EXPECT_EQ(tap::check_echo({Echo::State::refused}, off, closed).remedy, "switch it on");
    EXPECT_EQ(where_all_else_is_well({Echo::State::not_heard}).remedy, "sudo nft list ruleset");
    EXPECT_EQ(where_all_else_is_well({Echo::State::refused}).remedy,
              "ip route get 255.255.255.255");
}

TEST(BufferCheck, TheKernelGrantsTwiceWhatIsAskedFor)
{
    auto const finding = tap::check_buffer({.wanted = 4194304, .granted = 8388608});

    EXPECT_EQ(finding.health, well);
    EXPECT_THAT(finding.text, HasSubstr("4096 KiB, about 10922 short messages"));
}

TEST(BufferCheck, LessThanTheMessengerAsksForIsAWarningWithBothCommands)
{
    auto const finding = tap::check_buffer({.wanted = 4194304, .granted = 425984});

    EXPECT_EQ(finding.health, warning);
    EXPECT_THAT(finding.text, HasSubstr("208 KiB"));
    EXPECT_EQ(finding.remedy, "echo net.core.rmem_max=4194304 | sudo tee "
                              "/etc/sysctl.d/60-vexloim.conf && sudo sysctl -w "
                              "net.core.rmem_max=4194304");
}

TEST(BufferCheck, WhatCouldNotBeTriedIsNotKnown)
{
    EXPECT_EQ(tap::check_buffer({.wanted = 4194304}).health, unknown);
}

} // namespace
