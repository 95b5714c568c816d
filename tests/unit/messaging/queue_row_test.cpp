#include "messaging/queue_row.h"
#include "tests/unit/fakes.h"

#include <gtest/gtest.h>

namespace {

using messaging::Blocking;
using messaging::Nonsense;
using messaging::read_row;
using network::wire::Message;
using network::wire::Presence;
using unit::western;

TEST(QueueRow, APresenceRowIsReadAsPresence)
{
    auto const row = read_row("**-[ROOM07\\BOB]=Bob", western);

    auto const* presence = std::get_if<Presence>(&row);
    ASSERT_NE(presence, nullptr);
    EXPECT_EQ(presence->marker, "**-");
    EXPECT_EQ(presence->name, "BOB");
}

TEST(QueueRow, TwoClosingBracketsMakeAMessage)
{
    auto const row = read_row("ab]cd]ef", western);

    auto const* message = std::get_if<Message>(&row);
    ASSERT_NE(message, nullptr);
    EXPECT_EQ(message->sender, "ab]");
    EXPECT_EQ(message->recipient, "cd]");
    EXPECT_EQ(message->body, "ef");
}

TEST(QueueRow, AMarkerWithoutASeparatorBlocks)
{
    for (auto const* row : {"***", "***ABC", "**-[ROOM07\\BOB]", "-**[A\\B][C\\D]hi"}) {
        EXPECT_TRUE(std::holds_alternative<Blocking>(read_row(row, western))) << row;
    }
}

TEST(QueueRow, FewerThanTwoClosingBracketsAreNonsense)
{
    for (auto const* row : {"", " ", "hello", "[A\\B]hi", "---[ROOM12\\ALICE]=Alice"}) {
        EXPECT_TRUE(std::holds_alternative<Nonsense>(read_row(row, western))) << row;
    }
}

TEST(QueueRow, TheDashRowWithABracketInItsNameIsAMessage)
{
    auto const row = read_row("---[ROOM12\\ALICE]=Ali]ce", western);

    EXPECT_TRUE(std::holds_alternative<Message>(row));
}

} // namespace
