#include "tap/checks/bound_ports.h"
#include "tap/checks/ports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using tap::BoundPort;
using tap::Finding;
using tap::Holder;
using tap::Port;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using enum tap::Finding::Health;

Port const usual_listening{.number = 4111};
Port const usual_sending{.number = 4112};

TEST(BoundPorts, AreReadFromTheKernelsTable)
{
    auto const table =
        "   sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  "
        "timeout inode ref pointer drops\n"
        "  521: 00000000:100F 00000000:0000 07 00000000:00000000 00:00000000 00000000  1000        "
        "0 24680 2 0000000000000000 17\n"
        " 1522: 0100007F:0035 00000000:0000 07 00000000:00000000 00:00000000 00000000   101        "
        "0 13579 2 0000000000000000 0\n";

    EXPECT_THAT(tap::bound_ports(table),
                ElementsAre(BoundPort{4111, 24680, 17}, BoundPort{53, 13579, 0}));
}

TEST(BoundPorts, OfTheNewerProtocolStandInLongerAddresses)
{
    auto const row = "  9: 00000000000000000000000000000000:100F "
                     "00000000000000000000000000000000:0000 07 00000000:00000000 00:00000000 "
                     "00000000 0 0 42 2 0000000000000000 0\n";

    EXPECT_THAT(tap::bound_ports(row), ElementsAre(BoundPort{4111, 42, 0}));
}

TEST(BoundPorts, ARowThatIsNoneIsLeftOut)
{
    EXPECT_THAT(tap::bound_ports(""), IsEmpty());
    EXPECT_THAT(tap::bound_ports("one two\n 1: a b c d e f g h i j k l m\n"), IsEmpty());
    for (auto const* const row : {"00:ZZ 0 7 0 0 0 0 0 42 2 0 0", "00:1X 0 7 0 0 0 0 0 42 2 0 0",
                                  "001F 0 7 0 0 0 0 0 42 2 0 0", "00:1FFFF 0 7 0 0 0 0 0 42 2 0 0",
                                  "00:-1 0 7 0 0 0 0 0 42 2 0 0", "00:1F 0 7 0 0 0 0 0 4x 2 0 0",
                                  "00:1F 0 7 0 0 0 0 0 42 2 0 -"}) {
        EXPECT_THAT(tap::bound_ports(std::string(" 1: ") + row + "\n"), IsEmpty()) << row;
    }
}

TEST(PortsCheck, FreePortsAreWell)
{
    for (Finding const& finding : tap::check_ports(usual_listening, usual_sending)) {
        EXPECT_EQ(finding.health, well) << finding.check;
        EXPECT_EQ(finding.remedy, "");
    }
}

TEST(PortsCheck, ThePortsOfTheRunningMessengerAreWell)
{
    Port const held{.number = 4111,
                    .holder = Holder{.process = 77, .name = "vexloim", .is_messenger = true}};

    auto const findings = tap::check_ports(held, usual_sending);

    EXPECT_EQ(findings[0].health, well);
    EXPECT_THAT(findings[0].text, HasSubstr("process 77"));
}

TEST(PortsCheck, APortOfAnotherProgramIsWrongAndTheRemedyEndsIt)
{
    Port const held{.number = 4112, .holder = Holder{.process = 91, .name = "thief"}};

    auto const findings = tap::check_ports(usual_listening, held);

    EXPECT_EQ(findings[1].health, wrong);
    EXPECT_THAT(findings[1].text, HasSubstr("thief, process 91"));
    EXPECT_EQ(findings[1].remedy, "kill 91");
}

TEST(PortsCheck, AHolderWhoIsNotSeenIsLookedForByRoot)
{
    auto const findings = tap::check_ports({.number = 4111, .holder = Holder{}}, usual_sending);

    EXPECT_EQ(findings[0].health, wrong);
    EXPECT_EQ(findings[0].remedy, "sudo kill $(sudo ss -Hlunp 'sport = :4111' | grep -o "
                                  "'pid=[0-9]*' | cut -c5-)");
}

TEST(PortsCheck, TwoPortsOfOneNumberAreWrong)
{
    EXPECT_EQ(tap::check_ports(usual_listening, usual_listening)[2].health, wrong);
}

TEST(PortsCheck, AnotherPairThanTheUsualOneIsAWarning)
{
    auto const findings = tap::check_ports({.number = 4200}, {.number = 4201});

    EXPECT_EQ(findings[2].health, warning);
    EXPECT_THAT(findings[2].text, HasSubstr("4200 and 4201"));
}

TEST(PortsCheck, ANumberThatIsNoPortIsWrong)
{
    EXPECT_EQ(tap::check_ports({.number = 0}, usual_sending)[0].health, wrong);
    EXPECT_EQ(tap::check_ports(usual_listening, {.number = 65536})[1].health, wrong);
    EXPECT_EQ(tap::check_ports({.number = 65535}, usual_sending)[0].health, well);
}

TEST(PortsCheck, WhatTheKernelDroppedForTheMessengerIsAWarning)
{
    Port const held{.number = 4111,
                    .holder = Holder{.process = 77, .is_messenger = true, .drops = 12}};

    auto const findings = tap::check_ports(held, usual_sending);

    ASSERT_EQ(findings.size(), 4U);
    EXPECT_EQ(findings[3].health, warning);
    EXPECT_THAT(findings[3].text, HasSubstr("12 datagrams"));
    EXPECT_THAT(findings[3].remedy, HasSubstr("net.core.rmem_max"));
}

TEST(Findings, AWarningIsNotWrong)
{
    EXPECT_FALSE(tap::anything_wrong({}));
    EXPECT_FALSE(tap::anything_wrong({{"a", well, ""}, {"b", warning, ""}}));
    EXPECT_TRUE(tap::anything_wrong({{"a", well, ""}, {"b", wrong, ""}}));
}

} // namespace
