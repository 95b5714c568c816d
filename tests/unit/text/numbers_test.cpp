#include "text/failure.h"
#include "text/numbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using testing::Field;
using testing::StrEq;
using testing::ThrowsMessage;
using text::Failure;

struct Leading {
    std::string words;
    double number;
};

class TheLeadingNumberOf : public testing::TestWithParam<Leading> {};

TEST_P(TheLeadingNumberOf, IsWhatATextCountsAs)
{
    EXPECT_DOUBLE_EQ(text::leading_number(GetParam().words), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Texts, TheLeadingNumberOf,
                         testing::Values(Leading{"4111", 4111}, Leading{"4200x", 4200},
                                         Leading{"abc", 0}, Leading{"", 0}, Leading{"   ", 0},
                                         Leading{"  42 more", 42}, Leading{"-5", -5},
                                         Leading{"+5", 5}, Leading{"+-5", 0}, Leading{"--5", 0},
                                         Leading{".5", 0.5}, Leading{"-.5", -0.5}, Leading{".", 0},
                                         Leading{"-", 0}, Leading{"1.25rest", 1.25},
                                         Leading{"1,5", 1}, Leading{"x4200", 0}, Leading{"inf", 0},
                                         Leading{"nan", 0}, Leading{"-inf", 0}, Leading{"0x10", 0},
                                         Leading{"007", 7}));

TEST(Numbers, OneTooSmallToBeToldIsNothing)
{
    EXPECT_EQ(text::leading_number("1e-999"), 0);
    EXPECT_EQ(text::leading_number("1E-999"), 0);
    EXPECT_EQ(text::leading_number("1e999"), std::numeric_limits<double>::infinity());
}

TEST(Numbers, AWholeNumberIsRounded)
{
    EXPECT_EQ(text::leading_whole_number("4200.4"), 4200);
    EXPECT_EQ(text::leading_whole_number("4200.6"), 4201);
    EXPECT_EQ(text::leading_whole_number("-0.6"), -1);
}

TEST(Numbers, AHalfIsRoundedToTheEvenNeighbour)
{
    EXPECT_EQ(text::leading_whole_number("4200.5"), 4200);
    EXPECT_EQ(text::leading_whole_number("4201.5"), 4202);
    EXPECT_EQ(text::flag_value("0.5"), 0);
    EXPECT_EQ(text::flag_value("1.5"), 2);
}

TEST(Numbers, AWholeNumberHas32Bits)
{
    EXPECT_EQ(text::leading_whole_number("2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(text::leading_whole_number("-2147483648"), std::numeric_limits<int>::min());
    for (auto const* words : {"2147483648", "-2147483649", "1e999", "99999999999999999999"}) {
        EXPECT_THAT([words] { (void)text::leading_whole_number(words); },
                    ThrowsMessage<Failure>(StrEq("Overflow")))
            << words;
    }
}

TEST(Numbers, ANumberIsWrittenAsItCounts)
{
    EXPECT_EQ(text::leading_decimal("04111"), "4111");
    EXPECT_EQ(text::leading_decimal(" 4111 or so"), "4111");
    EXPECT_EQ(text::leading_decimal("4111.50"), "4111.5");
    EXPECT_EQ(text::leading_decimal("-7"), "-7");
    EXPECT_EQ(text::leading_decimal("99999999999"), "99999999999");
    for (auto const* nothing : {"", "abc", "-0"}) {
        EXPECT_EQ(text::leading_decimal(nothing), "0") << nothing;
    }
    EXPECT_THAT([] { (void)text::leading_decimal("1e999"); },
                ThrowsMessage<Failure>(StrEq("Overflow")));
}

TEST(Numbers, ASingleIsRefusedWhereItDoesNotFit)
{
    EXPECT_FLOAT_EQ(text::leading_single("-200.25 twips"), -200.25F);
    EXPECT_FLOAT_EQ(text::leading_single("nothing"), 0);
    EXPECT_FLOAT_EQ(text::leading_single("3e38"), 3e38F);
    for (auto const* words : {"4e38", "-4e38", "1e999"}) {
        EXPECT_THAT([words] { (void)text::leading_single(words); },
                    ThrowsMessage<Failure>(StrEq("Overflow")))
            << words;
    }
}

TEST(Numbers, AFlagIsTheWholeTextAsANumber)
{
    EXPECT_EQ(text::flag_value("1"), 1);
    EXPECT_EQ(text::flag_value("0"), 0);
    EXPECT_EQ(text::flag_value("2"), 2);
    EXPECT_EQ(text::flag_value("-1"), -1);
    EXPECT_EQ(text::flag_value("  1  "), 1);
    EXPECT_EQ(text::flag_value("01"), 1);
}

class NoFlag : public testing::TestWithParam<std::string> {};

TEST_P(NoFlag, IsATypeMismatch)
{
    EXPECT_THAT([] { (void)text::flag_value(GetParam()); },
                Throws<Failure>(
                    AllOf(Field(&Failure::text, "Type mismatch"), Field(&Failure::number, 13))));
}

INSTANTIATE_TEST_SUITE_P(Texts, NoFlag,
                         testing::Values("", "   ", "yes", "1x", "1 1", "on", "-", "True", "\t1"));

TEST(Numbers, AFlagOfMoreThan16BitsIsRefused)
{
    EXPECT_EQ(text::flag_value("32767"), 32767);
    EXPECT_THAT([] { (void)text::flag_value("32768"); }, ThrowsMessage<Failure>(StrEq("Overflow")));
}

TEST(Numbers, PlainDecimalTextHasNoExponentAndNoTrailingZeros)
{
    EXPECT_EQ(text::plain_decimal(0), "0");
    EXPECT_EQ(text::plain_decimal(3577), "3577");
    EXPECT_EQ(text::plain_decimal(3577.5F), "3577.5");
    EXPECT_EQ(text::plain_decimal(-120), "-120");
    EXPECT_EQ(text::plain_decimal(1e10F), "10000000000");
    EXPECT_EQ(text::plain_decimal(0.0001F), "0.0001");
}

TEST(Numbers, PlainDecimalTextHasTheDigitsOfSinglePrecision)
{
    EXPECT_EQ(text::plain_decimal(0.1F), "0.1");
    EXPECT_EQ(text::plain_decimal(1234.56789F), "1234.5679");
    EXPECT_EQ(text::leading_single(text::plain_decimal(2147.0833F)), 2147.0833F);
}

TEST(Numbers, TheLargestAndTheSmallestSingleAreWrittenWhole)
{
    for (float const number :
         {std::numeric_limits<float>::max(), std::numeric_limits<float>::lowest(),
          std::numeric_limits<float>::min(), std::numeric_limits<float>::denorm_min()}) {
        EXPECT_EQ(text::leading_single(text::plain_decimal(number)), number);
    }
}

} // namespace
