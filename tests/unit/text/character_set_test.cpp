#include "text/character_set.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using text::CharacterSet;

CharacterSet const letters = CharacterSet::western();

TEST(CharacterSet, EveryByteWithoutAnotherCaseStaysAsItIs)
{
    // The division and multiplication signs lie amid the letters, and the sharp s has no capital.
    std::string const caseless = "7 =[]\\\xF7\xD7\xDF\x80\xA0";

    EXPECT_EQ(letters.upper(caseless), caseless);
    EXPECT_EQ(letters.lower(caseless), caseless);
}

TEST(CharacterSet, AccentedLettersHaveTwoCases)
{
    EXPECT_EQ(letters.upper("\xE9\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF"),
              "\xC9\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F");
    EXPECT_EQ(letters.lower("\xC9\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F"),
              "\xE9\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF");
}

TEST(CharacterSet, EveryLetterComesBackFromItsOtherCase)
{
    for (int byte = 0; byte < 256; ++byte) {
        char const letter = static_cast<char>(byte);
        EXPECT_EQ(letters.lower(letters.upper(letter)), letters.lower(letter)) << byte;
        EXPECT_EQ(letters.upper(letters.lower(letter)), letters.upper(letter)) << byte;
    }
}

TEST(CharacterSet, AnotherOfficeBringsItsOwnLetters)
{
    CharacterSet::Table upper{};
    CharacterSet::Table lower{};
    for (std::size_t byte = 0; byte < upper.size(); ++byte) {
        upper[byte] = lower[byte] = static_cast<unsigned char>(byte);
    }
    upper[0xB8] = 0xA8;
    lower[0xA8] = 0xB8;
    CharacterSet const cyrillic(upper, lower);

    EXPECT_EQ(cyrillic.upper("\xB8"), "\xA8");
    EXPECT_EQ(letters.upper("\xB8"), "\xB8");
}

struct ProperCase {
    std::string given;
    std::string proper;
};

class ProperCaseOf : public testing::TestWithParam<ProperCase> {};

TEST_P(ProperCaseOf, EachWordHasOneCapital)
{
    EXPECT_EQ(letters.proper(GetParam().given), GetParam().proper);
}

INSTANTIATE_TEST_SUITE_P(
    Names, ProperCaseOf,
    testing::Values(ProperCase{"ALICE MEYER", "Alice Meyer"}, ProperCase{"alice", "Alice"},
                    ProperCase{"", ""}, ProperCase{"7", "7"}, ProperCase{"A", "A"},
                    ProperCase{"  TWO  BLANKS ", "  Two  Blanks "},
                    ProperCase{"O'BRIEN", "O'brien"}, ProperCase{"MEYER-BERG", "Meyer-berg"},
                    ProperCase{"\xC9MILE", "\xC9mile"}, ProperCase{"TAB\tSTAYS", "Tab\tstays"}));

TEST(CharacterSet, TheFirstLetterOfAWordIsCapitalEvenBehindASign)
{
    EXPECT_EQ(letters.proper("[ROOM12\\ALICE]"), "[Room12\\alice]");
    EXPECT_EQ(letters.proper("7UP (NEW)"), "7Up (New)");
}

TEST(CharacterSet, TextsAreTheSameWhateverTheirCase)
{
    EXPECT_TRUE(letters.same("Zo\xEB", "ZO\xCB"));
    EXPECT_TRUE(letters.same("", ""));
    EXPECT_FALSE(letters.same("Bob", "Bobby"));
    EXPECT_FALSE(letters.same("Bobby", "Bob"));
    EXPECT_FALSE(letters.same("Bob", "B0b"));
}

TEST(CharacterSet, TheSortOrderIsCaseBlind)
{
    EXPECT_TRUE(letters.before("anna", "BERT"));
    EXPECT_TRUE(letters.before("ANNA", "bert"));
    EXPECT_FALSE(letters.before("bert", "ANNA"));
    EXPECT_TRUE(letters.before("Bert", "Bertha"));
    EXPECT_FALSE(letters.before("Bertha", "Bert"));
    EXPECT_TRUE(letters.before("", "a"));
    EXPECT_TRUE(letters.before("Z", "\xE4")); // Bytes above the plain letters stand behind them.
    EXPECT_FALSE(letters.before("\xE4", "Z"));
}

TEST(CharacterSet, TextsThatDifferInCaseOnlyAreSortedByBytes)
{
    EXPECT_TRUE(letters.before("Bob", "bob"));
    EXPECT_FALSE(letters.before("bob", "Bob"));
    EXPECT_FALSE(letters.before("bob", "bob"));
    EXPECT_TRUE(letters.before("BOB b", "bob C"));
}

TEST(CharacterSet, AnySetOfTextsHasOneOrder)
{
    std::vector<std::string> const ordered{"", "Anna", "anna", "anna b", "Bert", "\xC4rzte"};
    std::vector<std::string> shuffled(ordered.rbegin(), ordered.rend());

    std::ranges::sort(shuffled, [](auto const& a, auto const& b) { return letters.before(a, b); });

    EXPECT_EQ(shuffled, ordered);
}

TEST(CharacterSet, FindsTheFirstPlaceWhateverTheCase)
{
    EXPECT_EQ(letters.find("To be or not to be", "BE"), 3U);
    EXPECT_EQ(letters.find("To be or not to be", "BE", 3), 3U);
    EXPECT_EQ(letters.find("To be or not to be", "BE", 4), 16U);
    EXPECT_EQ(letters.find("To be or not to be", "BE", 17), text::npos);
    EXPECT_EQ(letters.find("\xC4rger", "\xE4R"), 0U);
    EXPECT_EQ(letters.find("short", "shorter"), text::npos);
}

TEST(CharacterSet, AnEmptyTextIsFoundWhereTheSearchBegins)
{
    EXPECT_EQ(letters.find("abc", "", 0), 0U);
    EXPECT_EQ(letters.find("abc", "", 3), 3U);
    EXPECT_EQ(letters.find("abc", "", 4), text::npos);
    EXPECT_EQ(letters.find("", "", 0), 0U);
    EXPECT_EQ(letters.find("", "a", 0), text::npos);
}

} // namespace
