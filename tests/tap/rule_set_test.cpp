#include "tap/checks/rule_set.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int port = 4111;

std::string input_chain(std::string const& policy, std::string const& rules)
{
    return "table inet filter {\n"
           "\tchain input {\n"
           "\t\ttype filter hook input priority filter; policy " +
           policy + ";\n" + rules + "\t}\n}\n";
}

bool keeps_out(std::string const& policy, std::string const& rules)
{
    return tap::closed_chain(input_chain(policy, rules), port).has_value();
}

TEST(RuleSet, APolicyThatDropsKeepsThePortOut)
{
    EXPECT_TRUE(keeps_out("drop", ""));
    EXPECT_FALSE(keeps_out("accept", ""));
}

TEST(RuleSet, ARuleForThePortLetsItIn)
{
    EXPECT_FALSE(keeps_out("drop", "\t\tudp dport 4111 accept\n"));
    EXPECT_FALSE(keeps_out("drop", "\t\tudp dport 4111 counter packets 4112 bytes 0 accept\n"));
    EXPECT_FALSE(keeps_out("drop", "\t\tudp dport { 53, 4111 } accept\n"));
    EXPECT_FALSE(keeps_out("drop", "\t\tudp dport 4100-4200 accept\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tudp dport 4110 accept\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tudp dport 4000-4110 accept\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tct state established,related accept\n"));
}

TEST(RuleSet, ARuleThatDropsAllComesAfterTheOnesBeforeIt)
{
    EXPECT_TRUE(keeps_out("accept", "\t\tcounter packets 0 bytes 0 drop\n"));
    EXPECT_TRUE(keeps_out("accept", "\t\treject with icmpx admin-prohibited\n"));
    EXPECT_FALSE(keeps_out("accept", "\t\tudp dport 4111 accept\n\t\tdrop\n"));
    EXPECT_TRUE(keeps_out("accept", "\t\tdrop\n\t\tudp dport 4111 accept\n"));
}

TEST(RuleSet, ARuleCanDropThePortAlone)
{
    EXPECT_TRUE(keeps_out("accept", "\t\tudp dport 4111 drop\n"));
    EXPECT_FALSE(keeps_out("accept", "\t\tudp dport 4112 drop\n"));
}

TEST(RuleSet, ARuleForBroadcastsIsForTheMessengers)
{
    EXPECT_TRUE(keeps_out("accept", "\t\tmeta pkttype broadcast drop\n"));
    EXPECT_TRUE(
        keeps_out("accept", "\t\tfib daddr type broadcast counter packets 0 bytes 0 drop\n"));
    EXPECT_TRUE(keeps_out("accept", "\t\tip daddr 255.255.255.255 reject\n"));
    EXPECT_TRUE(keeps_out("accept", "\t\tmeta l4proto udp meta pkttype broadcast drop\n"));
    EXPECT_FALSE(keeps_out("drop", "\t\tmeta pkttype broadcast accept\n"));
    EXPECT_FALSE(keeps_out("drop", "\t\tip protocol udp accept\n"));
    EXPECT_FALSE(keeps_out("accept", "\t\tmeta pkttype multicast drop\n"));
    EXPECT_FALSE(keeps_out("accept", "\t\tmeta pkttype broadcast udp dport 67 drop\n"));
}

TEST(RuleSet, ANumberThatIsNoPortOfTheRuleSaysNothingOfIt)
{
    EXPECT_TRUE(keeps_out("drop", "\t\tudp dport 53 counter packets 4111 bytes 0 accept\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tudp dport { 53, 67 } limit rate 4111/second accept\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tudp dport\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tudp dport {\n"));
}

TEST(RuleSet, ARuleCanBeForAllPortsButSome)
{
    EXPECT_FALSE(keeps_out("accept", "\t\tudp dport != 4111 drop\n"));
    EXPECT_FALSE(keeps_out("accept", "\t\tudp dport != { 53, 4111 } drop\n"));
    EXPECT_TRUE(keeps_out("accept", "\t\tudp dport != 53 drop\n"));
    EXPECT_TRUE(keeps_out("accept", "\t\tudp dport != { 53, 67 } drop\n"));
}

TEST(RuleSet, ARuleOfAnotherProtocolOrWithoutOneIsNotAboutThePort)
{
    EXPECT_TRUE(keeps_out("drop", "\t\ttcp dport 4111 accept\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tdport 4111 accept\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tudp dport 4100+4200 accept\n"));
    EXPECT_TRUE(keeps_out("drop", "\t\tudp dport 4111/4112 drop\n"));
}

TEST(RuleSet, WhatIsNoRuleOfAChainSaysNothing)
{
    EXPECT_TRUE(keeps_out("drop", "\n\t\tmeta pkttype broadcast\n"));
    EXPECT_FALSE(
        tap::closed_chain("type filter hook input priority 0; policy drop;\ndrop\n", port));
    EXPECT_FALSE(tap::closed_chain("table\nchain\ntable inet\n}\n", port));
}

TEST(RuleSet, WhatStandsInQuotesIsNoVerdict)
{
    EXPECT_TRUE(keeps_out("accept", "\t\tudp dport 4111 drop comment \"do not accept it\"\n"));
    EXPECT_FALSE(keeps_out("accept", "\t\tcounter log prefix \"would drop it\"\n"));
    EXPECT_FALSE(keeps_out("accept", "\t\tiifname \"drop\" counter drop\n"));
}

/// Two chains of one table, the second one that of what comes in.
std::string with_office(std::string const& rules, std::string const& policy,
                        std::string const& input)
{
    return "table inet filter {\n\tchain office {\n" + rules + "\t}\n" +
           input_chain(policy, input).substr(21);
}

TEST(RuleSet, AChainIsFollowedWhereARuleLeadsToIt)
{
    auto const rules = with_office("\t\tudp dport 4111 accept\n", "drop", "\t\tjump office\n");

    EXPECT_FALSE(tap::closed_chain(rules, port));
    EXPECT_TRUE(tap::closed_chain(rules, port + 1));
}

TEST(RuleSet, BehindAJumpTheRulesGoOnAndBehindAGotoTheyDoNot)
{
    EXPECT_TRUE(tap::closed_chain(with_office("", "accept", "\t\tjump office\n\t\tdrop\n"), port));
    EXPECT_FALSE(tap::closed_chain(with_office("", "accept", "\t\tgoto office\n\t\tdrop\n"), port));
    EXPECT_TRUE(tap::closed_chain(with_office("", "drop", "\t\tgoto office\n\t\taccept\n"), port));
}

TEST(RuleSet, AChainCanBeLeftBeforeItsEnd)
{
    auto const rules = "\t\tudp dport 4111 return\n\t\tdrop\n";

    EXPECT_FALSE(tap::closed_chain(with_office(rules, "accept", "\t\tjump office\n"), port));
    EXPECT_TRUE(tap::closed_chain(with_office(rules, "accept", "\t\tjump office\n"), port + 1));
    EXPECT_TRUE(tap::closed_chain(
        with_office("\t\treturn\n\t\taccept\n", "drop", "\t\tjump office\n"), port));
}

TEST(RuleSet, ManyWaysToOneChainAreWalkedOnce)
{
    std::string rules = "table inet filter {\n";
    for (int number = 0; number < 64; ++number) {
        auto const jump = "\t\tjump office" + std::to_string(number + 1) + "\n";
        rules += "\tchain office" + std::to_string(number) + " {\n" + jump + jump + "\t}\n";
    }
    rules += input_chain("drop", "\t\tjump office0\n").substr(21);

    EXPECT_TRUE(tap::closed_chain(rules, port));
}

TEST(RuleSet, ChainsThatLeadToEachOtherEnd)
{
    EXPECT_TRUE(keeps_out("drop", "\t\tjump input\n"));
}

TEST(RuleSet, ChainsOfOtherPacketsDoNotCount)
{
    auto const rules = "table ip filter {\n\tchain FORWARD {\n\t\ttype filter hook forward "
                       "priority filter; policy drop;\n\t}\n}\n";

    EXPECT_FALSE(tap::closed_chain(rules, port));
}

TEST(RuleSet, ATableOfAnotherFamilyHasNoDatagramOfTheMessengers)
{
    for (std::string const family : {"ip6", "arp"}) {
        EXPECT_FALSE(
            tap::closed_chain("table " + family + input_chain("drop", "").substr(10), port));
    }
    EXPECT_TRUE(tap::closed_chain("table ip" + input_chain("drop", "").substr(10), port));
}

TEST(RuleSet, AChainIsLookedForInItsOwnTable)
{
    auto const other = "table ip other {\n\tchain office {\n\t\taccept\n\t}\n}\n";

    EXPECT_TRUE(tap::closed_chain(other + input_chain("drop", "\t\tjump office\n"), port));
    EXPECT_TRUE(tap::closed_chain(input_chain("drop", "\t\tjump\n"), port));
    EXPECT_TRUE(tap::closed_chain(input_chain("drop", "\t\tjump nowhere\n"), port));
}

} // namespace
