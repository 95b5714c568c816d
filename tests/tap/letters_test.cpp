#include "tap/letters.h"

#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Letters : testing::Test {
    Letters()
    {
        auto& frmMain = forms.frmMain;
        frmMain.user = "[ROOM12\\ALICE]";
        frmMain.friendlyname = "ALICE MEYER";
        frmMain.userlist.add_all(
            {"[ROOM07\\BOB]=BOB", "[ROOM33\\CARL]=CARL DUNN", "[ROOM34\\DORA]=DORA DUNN"});
        frmMain.List1.add(forms::group_row("SALES", "2"));
        forms.groups.group[2].add_all({"BOB", "not found", "CARL DUNN"});
    }

    std::optional<tap::Letter> to(std::string_view name, std::string_view text = "Tea?")
    {
        return tap::letter_to(name, text, forms.frmMain);
    }

    forms::Forms forms{unit::western};
};

TEST_F(Letters, ToOneUserTheNameStandsBeforeTheText)
{
    auto const letter = to("Bob");

    ASSERT_TRUE(letter);
    EXPECT_EQ(letter->datagram, "[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> Tea?");
    EXPECT_EQ(letter->recipient, "[ROOM07\\BOB]");
    EXPECT_EQ(letter->name, "BOB");
    EXPECT_THAT(letter->others, IsEmpty());
}

TEST_F(Letters, TheEndOfANameIsEnoughAndTheFirstOfSeveralGetsIt)
{
    auto const letter = to("dunn");

    ASSERT_TRUE(letter);
    EXPECT_EQ(letter->name, "CARL DUNN");
    EXPECT_THAT(letter->others, ElementsAre("DORA DUNN"));
}

TEST_F(Letters, ThereIsNoneForANameThatNobodyHas)
{
    EXPECT_FALSE(to("Eve"));
}

TEST_F(Letters, AllIsEverybodyWhereNobodyIsCalledSo)
{
    EXPECT_EQ(to("All")->recipient, "[ALL]");
    EXPECT_EQ(to("All")->name, "ALL");

    forms.frmMain.userlist.add("[ROOM09\\M]=MARSHALL");

    EXPECT_EQ(to("All")->recipient, "[ROOM09\\M]");
}

TEST_F(Letters, ToEverybodyTheTextSaysSo)
{
    auto const letter = tap::letter_to_all("Tea!", forms.frmMain);

    EXPECT_EQ(letter.datagram, "[ROOM12\\ALICE][ALL]ALICE MEYER> (To All) Tea!");
}

TEST_F(Letters, ToAGroupEachKnownMemberGetsTheBareText)
{
    auto const letters = tap::letters_to_group("Sales", "Cake!", forms);

    ASSERT_TRUE(letters);
    ASSERT_EQ(letters->size(), 2U);
    EXPECT_EQ(letters->at(0).datagram, "[ROOM12\\ALICE][ROOM07\\BOB]Cake!");
    EXPECT_EQ(letters->at(1).datagram, "[ROOM12\\ALICE][ROOM33\\CARL]Cake!");
    EXPECT_EQ(letters->at(1).name, "CARL DUNN");
}

TEST_F(Letters, ThereAreNoneForAGroupThatIsNotThere)
{
    EXPECT_FALSE(tap::letters_to_group("SALE", "Cake!", forms));
}

TEST(AsTyped, EveryLineEndBecomesThatOfTheComposeBox)
{
    EXPECT_EQ(tap::as_typed("one\ntwo\r\nthree\rfour"), "one\r\ntwo\r\nthree\r\nfour");
    EXPECT_EQ(tap::as_typed("\n\n"), "\r\n\r\n");
    EXPECT_EQ(tap::as_typed(""), "");
}

} // namespace
