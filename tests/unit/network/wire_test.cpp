#include "network/wire.h"
#include "tests/unit/fakes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace wire = network::wire;
using unit::western;

TEST(WirePresence, IsWrittenAsMarkerIdentityAndName)
{
    EXPECT_EQ(wire::presence(wire::announce, "[ROOM12\\ALICE]", "Alice Meyer"),
              "***[ROOM12\\ALICE]=Alice Meyer");
    EXPECT_EQ(wire::presence(wire::answer, "[ROOM07\\BOB]", "Bob"), "**-[ROOM07\\BOB]=Bob");
    EXPECT_EQ(wire::presence(wire::sign_off, "[ROOM12\\ALICE]", "Alice Meyer"),
              "-**[ROOM12\\ALICE]=Alice Meyer");
    EXPECT_EQ(wire::presence(wire::dash, "[ROOM12\\ALICE]", "Alice Meyer"),
              "---[ROOM12\\ALICE]=Alice Meyer");
}

TEST(WirePresence, AnEmptyNameEndsInTheSeparator)
{
    EXPECT_EQ(wire::presence(wire::announce, "[ROOM12\\ALICE]", ""), "***[ROOM12\\ALICE]=");
}

TEST(WirePresence, IsToldByItsFirstThreeCharacters)
{
    EXPECT_TRUE(wire::is_presence("***[ROOM12\\ALICE]=Alice Meyer"));
    EXPECT_TRUE(wire::is_presence("**-[ROOM07\\BOB]=Bob"));
    EXPECT_TRUE(wire::is_presence("-**[ROOM12\\ALICE]=Alice Meyer"));
    EXPECT_TRUE(wire::is_presence("***"));
}

TEST(WirePresence, NothingElseIsPresence)
{
    for (auto const* row : {"---[ROOM12\\ALICE]=Alice Meyer", " ", "", "**", "-*", " ***[A\\B]=C",
                            "*-*[A\\B]=C", "--*[A\\B]=C", "[ROOM12\\ALICE][ROOM07\\BOB]***"}) {
        EXPECT_FALSE(wire::is_presence(row)) << row;
    }
}

struct PresenceRow {
    std::string row;
    std::string marker;
    std::string identity;
    std::string name;
};

class ThePresenceRow : public testing::TestWithParam<PresenceRow> {};

TEST_P(ThePresenceRow, IsReadInUpperCase)
{
    auto const read = wire::parse_presence(GetParam().row, western);

    ASSERT_TRUE(read);
    EXPECT_EQ(read->marker, GetParam().marker);
    EXPECT_EQ(read->identity, GetParam().identity);
    EXPECT_EQ(read->name, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, ThePresenceRow,
    testing::Values(
        PresenceRow{"***[ROOM12\\ALICE]=Alice Meyer", "***", "[ROOM12\\ALICE]", "ALICE MEYER"},
        PresenceRow{"**-[ROOM07\\BOB]=Bob", "**-", "[ROOM07\\BOB]", "BOB"},
        PresenceRow{"-**[ROOM12\\ALICE]=Alice Meyer", "-**", "[ROOM12\\ALICE]", "ALICE MEYER"},
        PresenceRow{"***[room12\\al\xE9]=\xE9ric", "***", "[ROOM12\\AL\xC9]", "\xC9RIC"}));

INSTANTIATE_TEST_SUITE_P(
    OddNames, ThePresenceRow,
    testing::Values(PresenceRow{"***[A\\B]=2+2=4", "***", "[A\\B]",
                                "2+2=4"}, // The first "=" separates.
                    PresenceRow{"***[A\\B]==", "***", "[A\\B]", "="},
                    PresenceRow{"***[A\\B]=]x] > y", "***", "[A\\B]", "]X] > Y"},
                    PresenceRow{"***[A\\B]=", "***", "[A\\B]", ""},
                    PresenceRow{"***=", "***", "", ""}, PresenceRow{"***=NAME", "***", "", "NAME"},
                    PresenceRow{"***no brackets=Name", "***", "NO BRACKETS", "NAME"},
                    PresenceRow{"***[A\\B]= two \r\n lines", "***", "[A\\B]", " TWO \r\n LINES"}));

TEST(WirePresence, ARowWithoutASeparatorIsNone)
{
    EXPECT_FALSE(wire::parse_presence("***", western));
    EXPECT_FALSE(wire::parse_presence("***ABC", western));
    EXPECT_FALSE(wire::parse_presence("***][X]hi", western));
}

struct Form {
    int number;
    std::string datagram;
    std::string sender;
    std::string recipient;
    std::string head;
    std::string main;
};

std::vector<Form> const every_form{
    {1, "[ROOM12\\ALICE][ROOM07\\BOB]Alice Meyer> Lunch at noon?", "[ROOM12\\ALICE]",
     "[ROOM07\\BOB]", "Alice Meyer>", "Lunch at noon?"},
    {2, "[ROOM12\\ALICE][ALL]Alice Meyer> (To All) Server restarts at 5", "[ROOM12\\ALICE]",
     "[ALL]", "Alice Meyer>", "(To All) Server restarts at 5"},
    {3, "[ROOM12\\ALICE][ROOM07\\BOB]Lunch at noon?", "[ROOM12\\ALICE]", "[ROOM07\\BOB]", "",
     "unch at noon?"},
    {4,
     "[ROOM12\\ALICE][ROOM33\\CARL]Alice Meyer> Begin forwarded message:\r\n"
     "Alice Meyer> Lunch at noon?\r\nBob> I'm forwarding this to you.",
     "[ROOM12\\ALICE]", "[ROOM33\\CARL]", "Alice Meyer>",
     "Begin forwarded message:\r\nAlice Meyer> Lunch at noon?\r\n"
     "Bob> I'm forwarding this to you."},
    {5, "[ROOM07\\BOB][ROOM12\\ALICE]Alice Meyer> Lunch at noon?\r\nBob> Yes", "[ROOM07\\BOB]",
     "[ROOM12\\ALICE]", "Alice Meyer>", "Lunch at noon?\r\nBob> Yes"},
    {6, "[ROOM07\\BOB][ALL]Alice Meyer> (To All) Server restarts at 5\r\nBob> Noted",
     "[ROOM07\\BOB]", "[ALL]", "Alice Meyer>", "(To All) Server restarts at 5\r\nBob> Noted"},
    {7, "[ROOM07\\BOB][ALL]To All (from Bob):\r\nBack in ten minutes", "[ROOM07\\BOB]", "[ALL]", "",
     "o All (from Bob):\r\nBack in ten minutes"},
    {8, "[ROOM07\\BOB][ROOM33\\CARL]Back in ten minutes", "[ROOM07\\BOB]", "[ROOM33\\CARL]", "",
     "ack in ten minutes"},
    {9,
     "[ROOM07\\BOB][ROOM12\\ALICE]Alice Meyer> Lunch at noon?\r\n"
     "Bob> (Auto Resp) I'm away from my desk",
     "[ROOM07\\BOB]", "[ROOM12\\ALICE]", "Alice Meyer>",
     "Lunch at noon?\r\nBob> (Auto Resp) I'm away from my desk"},
    {10,
     "[ROOM07\\BOB][ROOM12\\ALICE]:RE: Alice Meyer> Lunch at noon?\r\n"
     "Bob> (Auto Resp) I'm away from my desk",
     "[ROOM07\\BOB]", "[ROOM12\\ALICE]", ":RE: Alice Meyer>",
     "Lunch at noon?\r\nBob> (Auto Resp) I'm away from my desk"},
    {11, "[ROOM12\\ALICE][ROOM33\\CARL]-- Msg auto fwded by Bob --\r\nAlice Meyer> Lunch at noon?",
     "[ROOM12\\ALICE]", "[ROOM33\\CARL]", "-- Msg auto fwded by Bob --\r\nAlice Meyer>",
     "Lunch at noon?"},
};

class TheMessageForm : public testing::TestWithParam<Form> {};

TEST_P(TheMessageForm, IsRead)
{
    auto const read = wire::parse_message(GetParam().datagram);

    ASSERT_TRUE(read);
    EXPECT_EQ(read->sender, GetParam().sender);
    EXPECT_EQ(read->recipient, GetParam().recipient);
    EXPECT_EQ(std::string(read->sender) + std::string(read->recipient) + std::string(read->body),
              GetParam().datagram);
}

TEST_P(TheMessageForm, IsSplitForTheHistory)
{
    auto const read = wire::parse_message(GetParam().datagram);
    ASSERT_TRUE(read);
    auto const body = wire::split_body(read->body);

    EXPECT_EQ(body.head, GetParam().head);
    EXPECT_EQ(body.main, GetParam().main);
}

TEST_P(TheMessageForm, IsWrittenBackFromItsThreeFields)
{
    auto const read = wire::parse_message(GetParam().datagram);
    ASSERT_TRUE(read);

    EXPECT_EQ(wire::message(read->sender, read->recipient, read->body), GetParam().datagram);
}

INSTANTIATE_TEST_SUITE_P(Examples, TheMessageForm, testing::ValuesIn(every_form),
                         [](auto const& told) { return "No" + std::to_string(told.param.number); });

TEST(WireMessage, TheFirstFourFormsAreWritten)
{
    constexpr std::string_view me = "[ROOM12\\ALICE]";
    constexpr std::string_view bob = "[ROOM07\\BOB]";
    constexpr std::string_view carl = "[ROOM33\\CARL]";
    EXPECT_EQ(wire::message(me, bob, wire::signed_text("Alice Meyer", "Lunch at noon?")),
              every_form[0].datagram);
    EXPECT_EQ(wire::message(me, wire::to_all,
                            wire::signed_text("Alice Meyer", "(To All) Server restarts at 5")),
              every_form[1].datagram);
    EXPECT_EQ(wire::message(me, bob, "Lunch at noon?"), every_form[2].datagram);
    EXPECT_EQ(wire::message(me, carl,
                            wire::signed_text("Alice Meyer", "Begin forwarded message:\r\n"
                                                             "Alice Meyer> Lunch at noon?\r\n"
                                                             "Bob> I'm forwarding this to you.")),
              every_form[3].datagram);
}

TEST(WireMessage, WhatHasNoTwoClosingBracketsIsNone)
{
    for (auto const* row : {"", " ", "hello", "]", "[ROOM12\\ALICE]", "[ROOM12\\ALICE][ROOM07\\BOB",
                            "---[ROOM12\\ALICE]=Alice Meyer"}) {
        EXPECT_FALSE(wire::parse_message(row)) << row;
    }
}

TEST(WireMessage, OpeningBracketsAreNeverTested)
{
    auto const read = wire::parse_message("ab][ROOM12\\ALICE]x");

    ASSERT_TRUE(read);
    EXPECT_EQ(read->sender, "ab]");
    EXPECT_EQ(read->recipient, "[ROOM12\\ALICE]");
    EXPECT_EQ(read->body, "x");
}

TEST(WireMessage, EveryFieldMayBeAsGoodAsEmpty)
{
    auto const read = wire::parse_message("]]");

    ASSERT_TRUE(read);
    EXPECT_EQ(read->sender, "]");
    EXPECT_EQ(read->recipient, "]");
    EXPECT_EQ(read->body, "");
}

TEST(WireMessage, ABodyWithBracketsAndSeparatorsIsCarriedWhole)
{
    auto const read = wire::parse_message("[A\\B][C\\D]x] = [y]\r\n]=> z");

    ASSERT_TRUE(read);
    EXPECT_EQ(read->body, "x] = [y]\r\n]=> z");
}

TEST(WireMessage, ABodyWithAZeroByteIsCarriedWhole)
{
    constexpr std::string_view body("a\0b", 3);

    auto const row = wire::message("[A\\B]", "[C\\D]", body);
    auto const read = wire::parse_message(row);

    ASSERT_TRUE(read);
    EXPECT_EQ(read->body, body);
}

TEST(WireMessage, ANameWithAClosingBracketBreaksTheFields)
{
    auto const read = wire::parse_message("[ROOM]12\\ALICE][ROOM07\\BOB]hi");

    ASSERT_TRUE(read);
    EXPECT_EQ(read->sender, "[ROOM]");
    EXPECT_EQ(read->recipient, "12\\ALICE]");
    EXPECT_EQ(read->body, "[ROOM07\\BOB]hi");
}

TEST(WireMessage, AnIdentityKeepsTheCaseThatItWasSentIn)
{
    auto const read = wire::parse_message("[room12\\alice][Room07\\Bob]hi");

    ASSERT_TRUE(read);
    EXPECT_EQ(read->sender, "[room12\\alice]");
    EXPECT_EQ(read->recipient, "[Room07\\Bob]");
}

TEST(WireBody, IsSplitAtTheFirstSignature)
{
    auto const body = wire::split_body("Bob> one> two> three");

    EXPECT_EQ(body.head, "Bob>");
    EXPECT_EQ(body.main, "one> two> three");
}

TEST(WireBody, NeedsTheBlankBehindTheSign)
{
    auto const body = wire::split_body("a>b> c");

    EXPECT_EQ(body.head, "a>b>");
    EXPECT_EQ(body.main, "c");
}

TEST(WireBody, MayBeginWithTheSignature)
{
    auto const body = wire::split_body("> text");

    EXPECT_EQ(body.head, ">");
    EXPECT_EQ(body.main, "text");
}

TEST(WireBody, WithoutASignatureLosesItsFirstCharacter)
{
    EXPECT_EQ(wire::split_body("Lunch at noon?").main, "unch at noon?");
    EXPECT_EQ(wire::split_body("x").main, "");
    EXPECT_EQ(wire::split_body("").main, "");
    EXPECT_EQ(wire::split_body("Lunch at noon?").head, "");
}

TEST(Wire, TheFixedFieldsStandAsPeersReadThem)
{
    EXPECT_EQ(wire::to_all, "[ALL]");
    EXPECT_EQ(wire::to_nobody, "[---]");
    EXPECT_EQ(wire::probe, " ");
}

} // namespace
