#include "qt/shown_text.h"

#include <gtest/gtest.h>

namespace {

qt::Codec const& western()
{
    static qt::Codec const codec(1252);
    return codec;
}

/// What the logic holds after a person has made the screen read `now`.
std::string after(std::string const& model, QString const& now)
{
    qt::ShownText const shown(model, western());
    auto const change = shown.change_to(now);
    return shown.changed(change, western().from_unicode(change.words));
}

TEST(ShownText, EveryKindOfLineEndIsOneBreak)
{
    qt::ShownText const shown("a\r\nb\rc\nd\r\r\n", western());

    EXPECT_EQ(shown.text(), QStringLiteral("a\nb\nc\nd\n\n"));
}

TEST(ShownText, AMarkThatComesBehindItsLetterChangesThatLetter)
{
    EXPECT_EQ(after("cafe", QStringLiteral("cafe\u0301")), "caf\xe9");
    EXPECT_EQ(after("cafes", QStringLiteral("cafe\u0301s")), "caf\xe9s");
}

TEST(ShownText, EveryByteIsOneCharacterAndComesBack)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r') {
            all += static_cast<char>(byte);
        }
    }
    qt::ShownText const shown(all, western());

    EXPECT_EQ(shown.text().size(), 254);
    EXPECT_EQ(western().from_unicode(shown.text()), all);
}

TEST(ShownText, PlacesGoThereAndBack)
{
    qt::ShownText const shown("ab\r\nc\rd\r\n", western());

    struct Pair {
        std::size_t model;
        qsizetype shown;
    };
    for (auto const [model, place] : {Pair{0, 0}, {2, 2}, {4, 3}, {5, 4}, {6, 5}, {7, 6}, {9, 7}}) {
        EXPECT_EQ(shown.shown_place(model), place);
        EXPECT_EQ(shown.model_place(place), model);
    }
}

TEST(ShownText, APlaceInsideALineEndIsInFrontOfIt)
{
    qt::ShownText const shown("ab\r\nc", western());

    EXPECT_EQ(shown.shown_place(3), 2);
}

TEST(ShownText, APlaceBehindTheEndIsTheEnd)
{
    qt::ShownText const shown("a\r\n", western());

    EXPECT_EQ(shown.shown_place(99), 2);
    EXPECT_EQ(shown.model_place(99), 3U);
}

TEST(ShownText, AChangeLeavesALoneCrAroundItAlone)
{
    EXPECT_EQ(after("one\rtwo\r", QStringLiteral("one\ntwoo\n")), "one\rtwoo\r");
    EXPECT_EQ(after("one\rtwo\r", QStringLiteral("one\ntwo\n!")), "one\rtwo\r!");
    EXPECT_EQ(after("one\rtwo\r", QStringLiteral("!one\ntwo\n")), "!one\rtwo\r");
}

TEST(ShownText, ABreakThatIsTypedIsCrLf)
{
    EXPECT_EQ(after("one", QStringLiteral("on\ne")), "on\r\ne");
    EXPECT_EQ(after("one\r", QStringLiteral("one\n\n")), "one\r\r\n");
}

TEST(ShownText, ABreakThatIsTakenGoesWhole)
{
    EXPECT_EQ(after("one\r\ntwo", QStringLiteral("onetwo")), "onetwo");
    EXPECT_EQ(after("one\rtwo", QStringLiteral("onetwo")), "onetwo");
}

TEST(ShownText, AChangeInARepetitionIsFound)
{
    EXPECT_EQ(after("aaaa", QStringLiteral("aaa")), "aaa");
    EXPECT_EQ(after("aaaa", QStringLiteral("aaaaa")), "aaaaa");
    EXPECT_EQ(after("ab", QString()), "");
}

} // namespace
