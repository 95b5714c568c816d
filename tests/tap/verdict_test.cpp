#include "tap/kind.h"
#include "tap/verdict.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using tap::Act;
using tap::Verdict;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TheVerdict : public testing::Test {
protected:
    tap::View alice{.user = "[ROOM12\\ALICE]",
                    .friendlyname = "ALICE MEYER",
                    .userlist = {"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM07\\BOB]=BOB"},
                    .allusers = {"Alice Meyer"}};

    /// What Alice's program does with the last one of these.
    Verdict of(std::vector<std::string_view> const& datagrams)
    {
        tap::Onlooker onlooker(alice, letters);
        Verdict last;
        for (auto const datagram : datagrams) {
            last = onlooker.take(datagram);
        }
        return last;
    }

    text::CharacterSet letters = text::CharacterSet::western();
};

TEST_F(TheVerdict, OnANewcomersAnnouncementIsTwoAnswers)
{
    auto const verdict = of({"***[ROOM55\\DORA]=Dora"});

    EXPECT_EQ(verdict.act, Act::answers);
    EXPECT_THAT(verdict.sends,
                ElementsAre("**-[ROOM12\\ALICE]=ALICE MEYER", "**-[ROOM12\\ALICE]=ALICE MEYER"));
    EXPECT_EQ(verdict.reason,
              "twice, since this is a newcomer: a new row, and the list on show is emptied");
}

TEST_F(TheVerdict, OnTheAnnouncementOfAKnownOneIsOneAnswer)
{
    auto const first = of({"***[ROOM07\\BOB]=Bob"});
    EXPECT_EQ(first.sends.size(), 1U);
    EXPECT_EQ(first.reason, "a known row: the name comes on show");

    auto const second = of({"***[ROOM07\\BOB]=Bob", "***[ROOM07\\BOB]=Bob"});
    EXPECT_EQ(second.act, Act::answers);
    EXPECT_EQ(second.reason, "known, and on show already");
}

TEST_F(TheVerdict, OnAnAnswerTellsWhatIsLearnt)
{
    EXPECT_EQ(of({"**-[ROOM55\\DORA]=Dora"}).act, Act::learns);
    EXPECT_EQ(of({"**-[ROOM07\\BOB]=Robert"}).reason,
              "a new name: the row is replaced, and the list on show is emptied");
    EXPECT_EQ(of({"**-[ROOM12\\ALICE]=Alice Meyer"}).act, Act::ignores);

    alice.showme = false;
    alice.allusers.clear();
    EXPECT_EQ(of({"**-[ROOM12\\ALICE]=Alice Meyer"}).reason,
              "the own name, which is not wanted on show");
}

TEST_F(TheVerdict, OnASignOffIsALineInTheStatusOrNothing)
{
    auto const known = of({"-**[ROOM07\\BOB]=Bob"});
    EXPECT_EQ(known.act, Act::notes);
    EXPECT_EQ(known.status, "BOB has signed off");

    EXPECT_EQ(of({"-**[ROOM55\\DORA]=Dora"}).act, Act::ignores);
}

TEST_F(TheVerdict, OnAMarkerWithoutAnEqualSignIsABlockForGood)
{
    EXPECT_EQ(of({"***ABC"}).act, Act::blocks);
    EXPECT_EQ(of({"***ABC", "[ROOM07\\BOB][ROOM12\\ALICE]Hello"}).act, Act::waits);
}

TEST_F(TheVerdict, OnAMessageIsAPopupOrTheReasonWhyThereIsNone)
{
    auto const shown = of({"[ROOM07\\BOB][ALL]BOB> (To All) Hello"});
    EXPECT_EQ(shown.act, Act::shows);
    EXPECT_EQ(shown.popup,
              (Verdict::Popup{.from = "Bob", .text = "BOB> (To All) Hello", .to_all = true}));

    EXPECT_EQ(of({"[ROOM07\\BOB][ROOM33\\CARL]x"}).reason,
              "for [ROOM33\\CARL], not for [ROOM12\\ALICE]");
    EXPECT_EQ(of({"[ROOM12\\ALICE][ROOM07\\BOB]x"}).reason, "the own message");
    EXPECT_THAT(of({"[ROOM12\\ALICE][ALL]x"}).reason,
                HasSubstr("\"When sending to All users, include me.\" is off"));
}

TEST_F(TheVerdict, OfAnAbsentOneIsAResponseOrAForward)
{
    alice.away = true;
    alice.autorespond = "Lunch";
    auto const responded = of({"[ROOM07\\BOB][ROOM12\\ALICE]BOB> Hello"});
    EXPECT_EQ(responded.act, Act::responds);
    EXPECT_THAT(responded.sends, ElementsAre("[ROOM12\\ALICE][ROOM07\\BOB]BOB> Hello\r\n"
                                             "ALICE MEYER> (Auto Resp) Lunch"));
    EXPECT_EQ(of({"[ROOM07\\BOB][ROOM12\\ALICE]:RE: Hello"}).act, Act::drops);

    alice.autorespond = "Forward to: Bob";
    EXPECT_EQ(of({"[ROOM33\\CARL][ROOM12\\ALICE]Hello"}).act, Act::forwards);
    alice.autoreply = true;
    EXPECT_EQ(of({"[ROOM33\\CARL][ROOM12\\ALICE]Hello"}).reason, "away, and responds");
}

TEST_F(TheVerdict, OnWhatNobodyReadsTellsWhatItIs)
{
    EXPECT_EQ(of({""}).reason, "there is nothing in it");
    EXPECT_THAT(of({" "}).reason, HasSubstr("one blank"));
    EXPECT_THAT(of({"---[ROOM07\\BOB]=BOB"}).reason, HasSubstr("dash"));
    EXPECT_THAT(of({"ab]"}).reason, HasSubstr("fewer than two"));
    EXPECT_THAT(of({"ab]"}).sends, IsEmpty());
}

TEST(AnAct, HasItsWord)
{
    EXPECT_EQ(tap::name_of(tap::Act::shows), "shows");
    EXPECT_EQ(tap::name_of(tap::Act::ignores), "ignores");
    EXPECT_EQ(tap::name_of(tap::Act::waits), "waits");
}

TEST(TheKind, IsOneWordForEachDatagram)
{
    auto const letters = text::CharacterSet::western();
    auto const kind = [&](std::string_view datagram) {
        return tap::name_of(tap::kind_of(messaging::read_row(datagram, letters), datagram));
    };

    EXPECT_EQ(kind("***[A]=B"), "announce");
    EXPECT_EQ(kind("**-[A]=B"), "answer");
    EXPECT_EQ(kind("-**[A]=B"), "sign-off");
    EXPECT_EQ(kind("[A][B]c"), "message");
    EXPECT_EQ(kind("***"), "block");
    EXPECT_EQ(kind(""), "empty");
    EXPECT_EQ(kind(" "), "probe");
    EXPECT_EQ(kind("---[A]=B"), "dash");
    EXPECT_EQ(kind("---[A]=B]"), "message");
    EXPECT_EQ(kind("hello"), "nonsense");
}

} // namespace
