#include "messaging/recipient_filter.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using messaging::Fate;

constexpr std::string_view me = "[ROOM12\\ALICE]";
constexpr std::string_view bob = "[ROOM07\\BOB]";
constexpr std::string_view to_all = "[ALL]";

Fate fate(std::string_view sender, std::string_view recipient)
{
    return messaging::fate_of({.sender = sender, .recipient = recipient, .body = "x"},
                              {.user = me, .myown = false});
}

Fate fate_with_myown(std::string_view sender, std::string_view recipient)
{
    return messaging::fate_of({.sender = sender, .recipient = recipient, .body = "x"},
                              {.user = me, .myown = true});
}

TEST(RecipientFilter, AMessageToMeOrToAllIsForUs)
{
    EXPECT_EQ(fate(bob, me), Fate::for_us);
    EXPECT_EQ(fate(bob, to_all), Fate::for_us);
}

TEST(RecipientFilter, AMessageToSomebodyElseIsForOthers)
{
    EXPECT_EQ(fate(bob, "[ROOM09\\CARL]"), Fate::for_others);
    EXPECT_EQ(fate(bob, bob), Fate::for_others);
}

TEST(RecipientFilter, TheOwnMessageToAllIsForUsOnlyWhenItIsWanted)
{
    EXPECT_EQ(fate(me, to_all), Fate::own_to_all);
    EXPECT_EQ(fate_with_myown(me, to_all), Fate::for_us);
}

TEST(RecipientFilter, TheOwnMessageToSomebodyIsDroppedEvenToOneself)
{
    EXPECT_EQ(fate_with_myown(me, bob), Fate::own);
    EXPECT_EQ(fate_with_myown(me, me), Fate::own);
}

TEST(RecipientFilter, ComparesByteForByte)
{
    EXPECT_EQ(fate(bob, "[room12\\alice]"), Fate::for_others);
    EXPECT_EQ(fate(bob, "[all]"), Fate::for_others);
    EXPECT_EQ(fate_with_myown("[room12\\alice]", me), Fate::for_us);
}

} // namespace
