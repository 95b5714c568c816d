#include "text/colouring.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

text::CharacterSet const letters = text::CharacterSet::western();

std::vector<std::string> turns(std::string_view conversation, std::string_view own,
                               std::string_view other,
                               text::LastTurn last = text::LastTurn::left_out)
{
    std::vector<std::string> texts;
    for (auto const& turn : text::own_turns(conversation, own, other, letters, last).own) {
        texts.emplace_back(conversation.substr(turn.start, turn.length));
    }
    return texts;
}

TEST(OwnTurns, RunFromTheOwnNameToTheOthersNext)
{
    EXPECT_THAT(turns("Bob> hi\r\nAlice> hello\r\nBob> lunch?", "ALICE", "BOB"),
                ElementsAre("Alice> hello\r\n"));
}

TEST(OwnTurns, TheLastOneIsLeftOutWhenTheOtherIsSilentBehindIt)
{
    auto const found = text::own_turns("Alice> one Bob> two Alice> three", "ALICE", "BOB", letters);

    EXPECT_THAT(found.own, ElementsAre(text::Span{0, 11}));
    EXPECT_TRUE(found.other_missing);
}

TEST(OwnTurns, TheLastOneMayRunToTheEnd)
{
    EXPECT_THAT(
        turns("Alice> one Bob> two Alice> three", "ALICE", "BOB", text::LastTurn::to_the_end),
        ElementsAre("Alice> one ", "Alice> three"));
    EXPECT_FALSE(text::own_turns("Alice> one", "ALICE", "BOB", letters, text::LastTurn::to_the_end)
                     .other_missing);
}

TEST(OwnTurns, TwoOwnNamesInARowAreOneTurn)
{
    EXPECT_THAT(turns("Alice> one\r\nAlice> two\r\nBob> three", "alice", "bob"),
                ElementsAre("Alice> one\r\nAlice> two\r\n"));
}

TEST(OwnTurns, ANameThatBeginsInsideItselfIsFound)
{
    EXPECT_THAT(turns("Ann> x ababac> y", "ANN", "ABAC"), ElementsAre("Ann> x ab"));
    EXPECT_THAT(turns("aaAab> x Bob> y", "AAAB", "BOB"), ElementsAre("aAab> x "));
}

TEST(OwnTurns, ALongNameInALongTextIsFound)
{
    std::string const name(20'000, 'a');

    auto const found =
        turns("Me> " + std::string(60'000, 'A') + "b" + name + "b", "ME", name + "B");

    EXPECT_THAT(found, ElementsAre("Me> " + std::string(40'000, 'A')));
}

TEST(OwnTurns, ANameInsideATextCountsToo)
{
    EXPECT_THAT(turns("Bob> ask alice, or bob", "ALICE", "BOB"), ElementsAre("alice, or "));
}

TEST(OwnTurns, ThereIsNoneWithoutTheOwnName)
{
    auto const found = text::own_turns("Bob> hi", "ALICE", "BOB", letters);

    EXPECT_THAT(found.own, IsEmpty());
    EXPECT_FALSE(found.other_missing);
}

TEST(OwnTurns, AnEmptyNameIsFoundNowhere)
{
    EXPECT_THAT(turns("Bob> hi", "", "BOB"), IsEmpty());
    EXPECT_THAT(turns("Alice> hi", "ALICE", ""), IsEmpty());
}

TEST(OwnTurns, ATalkWithOneselfHasNoneOfItsOwn)
{
    EXPECT_THAT(turns("Alice> one Alice> two", "ALICE", "ALICE"), IsEmpty());
}

} // namespace
