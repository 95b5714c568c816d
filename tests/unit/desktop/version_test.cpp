// The text A.B.C that the update host serves, and the one number that it counts as.

#include "desktop/version.h"
#include "text/failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using desktop::parse_version;
using desktop::version_text;
using testing::StrEq;
using testing::ThrowsMessage;
using text::Failure;

double number(std::string_view words)
{
    return parse_version(words).number();
}

TEST(Version, IsOneNumberOfThree)
{
    EXPECT_EQ(number("1.5.3"), 105003);
    EXPECT_EQ(number("0.0.0"), 0);
    EXPECT_EQ(number("12.34.56"), 1234056);
}

TEST(Version, CarriesWhereANumberIsTooLargeForItsPlace)
{
    EXPECT_EQ(number("1.5.1003"), number("1.6.3"));
    EXPECT_EQ(number("1.105.3"), number("2.5.3"));
}

TEST(Version, IsComputedWithFractions)
{
    // The third number runs to the end of the text, so it may hold a point of its own.
    EXPECT_EQ(number("1.5.3.5"), 105003.5);
    EXPECT_GT(number("1.5.3.1"), number("1.5.3"));
}

TEST(Version, CountsEachPartByItsLeadingNumber)
{
    EXPECT_EQ(number("1.5.4beta"), 105004);
    EXPECT_EQ(number("1a.5b.4c"), 105004);
    EXPECT_EQ(number(" 1. 5. 4"), 105004);
    EXPECT_EQ(number("v1.5.4"), 5004);
    EXPECT_EQ(number(".."), 0);
    EXPECT_EQ(number("-1.5.4"), -94996);
}

TEST(Version, DoesNotMindALineEnd)
{
    EXPECT_EQ(number("1.5.4\r\n"), 105004);
}

TEST(Version, WithoutTwoPointsIsAFailure)
{
    for (auto const* words : {"", "1", "1.5", "1.", "."}) {
        EXPECT_THAT([words] { (void)parse_version(words); },
                    ThrowsMessage<Failure>(StrEq("Invalid procedure call or argument")))
            << words;
    }
}

TEST(Version, IsWrittenWithPoints)
{
    EXPECT_EQ(version_text({.major = 1, .minor = 5, .revision = 3}), "1.5.3");
    EXPECT_EQ(version_text({.major = 10, .minor = 0, .revision = 120}), "10.0.120");
}

} // namespace
