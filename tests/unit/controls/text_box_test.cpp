#include "controls/text_box.h"
#include "tests/unit/counter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using controls::Colour;
using controls::RichText;
using controls::TextBox;
using testing::ElementsAre;
using testing::IsEmpty;
using unit::Counter;
using Stretch = RichText::Run;

constexpr Colour red{.red = 255};
constexpr Colour blue{.blue = 255};

TEST(TextBox, AChangeIsToldOnceAndSettingWhatIsThereTellsNothing)
{
    TextBox box("draft");
    Counter const changed(box.changed);

    box.set_text("draft");
    EXPECT_EQ(changed.count(), 0);

    box.set_text("other");
    box.set_text("other");
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(box.text(), "other");
    EXPECT_EQ(box.length(), 5U);
}

TEST(TextBox, ANewTextHasItsCaretAtTheStart)
{
    TextBox box("draft");
    box.select(1, 3);

    box.set_text("other");

    EXPECT_EQ(box.selection_start(), 0U);
    EXPECT_EQ(box.selection_length(), 0U);
}

TEST(TextBox, TheSameTextKeepsItsSelection)
{
    TextBox box("draft");
    box.select(1, 3);

    box.set_text("draft");

    EXPECT_EQ(box.selection_start(), 1U);
    EXPECT_EQ(box.selection_length(), 3U);
}

TEST(TextBox, ASelectionEndsWithTheText)
{
    TextBox box("draft");

    box.select(3, 100);
    EXPECT_EQ(box.selection_start(), 3U);
    EXPECT_EQ(box.selection_length(), 2U);

    box.select(100, 1);
    EXPECT_EQ(box.selection_start(), 5U);
    EXPECT_EQ(box.selection_length(), 0U);

    box.select(0, 2);
    box.caret_to_end();
    EXPECT_EQ(box.selection_start(), 5U);
    EXPECT_EQ(box.selection_length(), 0U);
}

TEST(TextBox, OneCharacterIsCutSoHalfALineEndStays)
{
    TextBox box("hello\r\n");
    Counter const changed(box.changed);

    box.cut_last_character();

    EXPECT_EQ(box.text(), "hello\r");
    EXPECT_EQ(changed.count(), 1);
}

TEST(TextBox, NothingIsCutFromAnEmptyBox)
{
    TextBox box;
    Counter const changed(box.changed);

    box.cut_last_character();

    EXPECT_TRUE(box.empty());
    EXPECT_EQ(changed.count(), 0);
}

TEST(RichText, AChangeIsToldOnceAndSettingWhatIsThereTellsNothing)
{
    RichText box;
    Counter const changed(box.changed);

    box.set_text("");
    EXPECT_EQ(changed.count(), 0);

    box.set_text("text");
    box.set_text("text");
    EXPECT_EQ(changed.count(), 1);
}

TEST(RichText, ANewTextIsWithoutColour)
{
    RichText box;
    box.set_text("old text");
    box.paint({0, 3, red});
    box.select(4, 4);

    box.set_text("new text");

    EXPECT_THAT(box.runs(), IsEmpty());
    EXPECT_EQ(box.selection_start(), 0U);
    EXPECT_EQ(box.selection_length(), 0U);
}

TEST(RichText, ASelectionEndsWithTheText)
{
    RichText box;
    box.set_text("text");

    box.select(2, 100);
    EXPECT_EQ(box.selection_start(), 2U);
    EXPECT_EQ(box.selection_length(), 2U);

    box.select(9, 9);
    EXPECT_EQ(box.selection_start(), 4U);
    EXPECT_EQ(box.selection_length(), 0U);
}

class Painting : public testing::Test {
protected:
    Painting() { box.set_text("0123456789"); }

    RichText box;
};

TEST_F(Painting, RunsStandInTheOrderOfTheText)
{
    box.paint({6, 2, red});
    box.paint({1, 2, blue});

    EXPECT_THAT(box.runs(), ElementsAre(Stretch{1, 2, blue}, Stretch{6, 2, red}));
}

TEST_F(Painting, TellsNobodyThatTheTextHasChanged)
{
    Counter const changed(box.changed);

    box.paint({0, 5, red});

    EXPECT_EQ(changed.count(), 0);
}

TEST_F(Painting, InsideARunLeavesItsTwoEnds)
{
    box.paint({0, 10, red});
    box.paint({4, 2, blue});

    EXPECT_THAT(box.runs(),
                ElementsAre(Stretch{0, 4, red}, Stretch{4, 2, blue}, Stretch{6, 4, red}));
}

TEST_F(Painting, OverTheEndOfARunCutsIt)
{
    box.paint({0, 5, red});
    box.paint({3, 4, blue});

    EXPECT_THAT(box.runs(), ElementsAre(Stretch{0, 3, red}, Stretch{3, 4, blue}));
}

TEST_F(Painting, OverTheStartOfARunCutsIt)
{
    box.paint({5, 5, red});
    box.paint({3, 4, blue});

    EXPECT_THAT(box.runs(), ElementsAre(Stretch{3, 4, blue}, Stretch{7, 3, red}));
}

TEST_F(Painting, OverWholeRunsReplacesThem)
{
    box.paint({1, 2, red});
    box.paint({5, 2, red});
    box.paint({1, 6, blue});

    EXPECT_THAT(box.runs(), ElementsAre(Stretch{1, 6, blue}));
}

TEST_F(Painting, BesideARunLeavesItAlone)
{
    box.paint({2, 2, red});
    box.paint({4, 2, blue});
    box.paint({0, 2, blue});

    EXPECT_THAT(box.runs(),
                ElementsAre(Stretch{0, 2, blue}, Stretch{2, 2, red}, Stretch{4, 2, blue}));
}

TEST_F(Painting, EndsWithTheText)
{
    box.paint({8, 100, red});
    box.paint({10, 1, blue});
    box.paint({50, 1, blue});

    EXPECT_THAT(box.runs(), ElementsAre(Stretch{8, 2, red}));
}

TEST_F(Painting, InTwoColoursCoversTheWholeText)
{
    box.paint({0, 3, red});

    box.paint_over(red, {{2, 3}, {5, 1}, {8, 2}}, blue);

    EXPECT_THAT(box.runs(),
                ElementsAre(Stretch{0, 2, red}, Stretch{2, 3, blue}, Stretch{5, 1, blue},
                            Stretch{6, 2, red}, Stretch{8, 2, blue}));
}

TEST_F(Painting, InTwoColoursWithoutStretchesIsOneColour)
{
    box.paint_over(red, {}, blue);

    EXPECT_THAT(box.runs(), ElementsAre(Stretch{0, 10, red}));
}

TEST_F(Painting, AnEmptyTextHasNoRuns)
{
    box.set_text("");

    box.paint_over(red, {}, blue);

    EXPECT_THAT(box.runs(), IsEmpty());
}

TEST_F(Painting, NothingPaintsNothing)
{
    box.paint({3, 0, red});

    EXPECT_THAT(box.runs(), IsEmpty());
}

} // namespace
