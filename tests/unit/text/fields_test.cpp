#include "text/fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> fields(std::string_view file)
{
    std::vector<std::string> all;
    for (text::FieldReader reader(file); !reader.at_end();) {
        all.push_back(reader.next());
    }
    return all;
}

std::vector<std::string> lines(std::string_view file)
{
    std::vector<std::string> all;
    text::for_each_line(file, [&all](std::string_view line) { all.emplace_back(line); });
    return all;
}

TEST(Fields, AnEmptyFileHasNone)
{
    EXPECT_THAT(fields(""), IsEmpty());
}

TEST(Fields, ALineIsAField)
{
    EXPECT_THAT(fields("one\r\ntwo words\r\n"), ElementsAre("one", "two words"));
}

TEST(Fields, TheLastLineNeedsNoEnd)
{
    EXPECT_THAT(fields("one\r\ntwo"), ElementsAre("one", "two"));
}

TEST(Fields, ACommaCutsAPlainField)
{
    EXPECT_THAT(fields("Back soon, call me\r\nnext"), ElementsAre("Back soon", "call me", "next"));
}

TEST(Fields, LeadingBlanksAreSkippedAndTrailingOnesStay)
{
    EXPECT_THAT(fields("   one  \r\n  two ,   three"), ElementsAre("one  ", "two ", "three"));
}

TEST(Fields, ATabIsNoBlank)
{
    EXPECT_THAT(fields("\tone"), ElementsAre("\tone"));
}

TEST(Fields, AnEmptyLineIsAnEmptyField)
{
    EXPECT_THAT(fields("one\r\n\r\ntwo"), ElementsAre("one", "", "two"));
    EXPECT_THAT(fields("\r\n"), ElementsAre(""));
    EXPECT_THAT(fields(",\r\n"), ElementsAre("", ""));
}

TEST(Fields, AQuotedFieldKeepsItsCommas)
{
    EXPECT_THAT(fields("\"Meyer, Alice\"\r\nnext"), ElementsAre("Meyer, Alice", "next"));
}

TEST(Fields, AQuotedFieldKeepsItsBlanksAndItsLineEnds)
{
    EXPECT_THAT(fields("  \"  two\r\nlines \"\r\nnext"), ElementsAre("  two\r\nlines ", "next"));
}

TEST(Fields, WhatStandsBetweenTheClosingQuoteAndTheFieldsEndIsLost)
{
    EXPECT_THAT(fields("\"one\" lost,two\r\n"), ElementsAre("one", "two"));
}

TEST(Fields, AQuoteThatNeverClosesRunsToTheEndOfTheFile)
{
    EXPECT_THAT(fields("\"one\r\ntwo,three"), ElementsAre("one\r\ntwo,three"));
    EXPECT_THAT(fields("\""), ElementsAre(""));
}

TEST(Fields, AQuoteInsideAPlainFieldIsALetter)
{
    EXPECT_THAT(fields("the \"big, one\""), ElementsAre("the \"big", "one\""));
}

TEST(Fields, LineEndsOfOneCharacterCountToo)
{
    EXPECT_THAT(fields("one\ntwo\rthree"), ElementsAre("one", "two", "three"));
}

TEST(Fields, AskedBeyondTheEndTheReaderGivesNothing)
{
    text::FieldReader reader("one");
    EXPECT_EQ(reader.next(), "one");
    EXPECT_TRUE(reader.at_end());
    EXPECT_EQ(reader.next(), "");
    EXPECT_EQ(reader.next(), "");
}

TEST(Fields, BlanksAtTheVeryEndAreOneEmptyField)
{
    EXPECT_THAT(fields("one\r\n   "), ElementsAre("one", ""));
}

TEST(Lines, EachLineIsHandedOverWithoutItsEnd)
{
    EXPECT_THAT(lines("one, and more\r\n \"two\"\r\n"), ElementsAre("one, and more", " \"two\""));
}

TEST(Lines, AnEmptyLineIsALine)
{
    EXPECT_THAT(lines("one\r\n\r\ntwo\r\n"), ElementsAre("one", "", "two"));
}

TEST(Lines, TheLastOneNeedsNoEnd)
{
    EXPECT_THAT(lines("one\r\ntwo"), ElementsAre("one", "two"));
    EXPECT_THAT(lines(""), IsEmpty());
}

TEST(Lines, EndsOfOneCharacterCountToo)
{
    EXPECT_THAT(lines("one\n\ntwo\rthree"), ElementsAre("one", "", "two", "three"));
}

} // namespace
