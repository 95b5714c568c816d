#include "tap/roll.h"

#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using tap::Roll;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto own = "[ROOM12\\ALICE]";

std::vector<Roll::Person> after(std::initializer_list<std::string_view> datagrams)
{
    Roll roll(own, unit::western);
    for (auto const datagram : datagrams) {
        roll.take(datagram);
    }
    return roll.people();
}

TEST(Roll, WhoAnswersAndWhoComesIsThereInTheOrderOfTheNames)
{
    EXPECT_THAT(after({"**-[ROOM33\\CARL]=Carl Dunn", "***[ROOM07\\BOB]=Bob"}),
                ElementsAre(Roll::Person{"[ROOM07\\BOB]", "BOB"},
                            Roll::Person{"[ROOM33\\CARL]", "CARL DUNN"}));
}

TEST(Roll, TheNameToldLastCounts)
{
    EXPECT_THAT(after({"**-[ROOM07\\BOB]=BOB", "**-[ROOM07\\BOB]=ROBERT"}),
                ElementsAre(Roll::Person{"[ROOM07\\BOB]", "ROBERT"}));
}

TEST(Roll, WhoSignsOffIsGone)
{
    EXPECT_THAT(after({"**-[ROOM07\\BOB]=BOB", "-**[ROOM07\\BOB]=BOB"}), IsEmpty());
}

TEST(Roll, TheOwnAnnouncementIsNobodyButTheAnswerOfTheOwnMessengerIsSomebody)
{
    EXPECT_THAT(after({"***[ROOM12\\ALICE]=ALICE MEYER"}), IsEmpty());
    EXPECT_THAT(after({"**-[ROOM12\\ALICE]=ALICE MEYER"}),
                ElementsAre(Roll::Person{own, "ALICE MEYER"}));
}

TEST(Roll, WhatWasHeardStandsInThePlaceOfWhatTheDirectoryKnew)
{
    controls::ListBox userlist(unit::western);
    userlist.add_all({"[ROOM07\\BOB]=BOB", "[ROOM99\\EVE]=EVE"});
    Roll roll(own, unit::western);
    roll.take("**-[ROOM07\\BOB]=Robert");

    roll.enter_into(userlist);

    EXPECT_THAT(userlist.rows(), ElementsAre("[ROOM07\\BOB]=ROBERT", "[ROOM99\\EVE]=EVE"));
}

TEST(Roll, MessagesAndNonsenseAreNobody)
{
    EXPECT_THAT(after({"[ROOM07\\BOB][ALL]BOB> x=y", " ", "", "***", "---[ROOM07\\BOB]=BOB"}),
                IsEmpty());
}

} // namespace
