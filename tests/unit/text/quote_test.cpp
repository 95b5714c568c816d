#include "text/quote.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Quote, TheRoomIsWhatReplyAndNamesLeaveOfTheLimit)
{
    EXPECT_EQ(text::quote_room(970, "Alice Meyer", "BOB", "Yes"), 970 - 11 - 3 - 3 - 9);
    EXPECT_EQ(text::quote_room(970, "", "", std::string(970, 'x')), -9);
}

TEST(Quote, AConversationThatFitsIsQuotedWhole)
{
    EXPECT_EQ(text::shortened("1234567890", 10, "BOB", "Alice"), "1234567890");
    EXPECT_EQ(text::shortened("", 0, "BOB", "Alice"), "");
}

TEST(Quote, ALongerOneKeepsItsTail)
{
    EXPECT_EQ(text::shortened("1234567890", 9, "BOB", "Alice"), "BOB/Alice> ... 234567890");
    EXPECT_EQ(text::shortened("1234567890", 0, "BOB", "Alice"), "BOB/Alice> ... ");
}

TEST(Quote, ANegativeRoomStillTakesATailByThatCount)
{
    EXPECT_EQ(text::shortened("1234567890", -4, "BOB", "Alice"), "BOB/Alice> ... 7890");
    EXPECT_EQ(text::shortened("1234567890", -40, "BOB", "Alice"), "BOB/Alice> ... 1234567890");
    EXPECT_EQ(text::shortened("", -4, "BOB", "Alice"), "BOB/Alice> ... ");
}

} // namespace
