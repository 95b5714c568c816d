#include "bench/capacity/scenarios.h"
#include "tests/capacity/lines.h"

namespace {

using capacity_tests::lines_of;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

TEST(CapacityOfASegment, OneSeedGivesTheSameLines)
{
    auto const one = lines_of(capacity::start, {"people=10", "seed=3", "loss=0.05"});

    EXPECT_EQ(one, lines_of(capacity::start, {"people=10", "seed=3", "loss=0.05"}));
    EXPECT_NE(one, lines_of(capacity::start, {"people=10", "seed=4", "loss=0.05"}));
}

TEST(CapacityOfASegment, OnAUsualDayAStartIsAnsweredOnceAnAnnouncementByAllWhoAreThere)
{
    // Two start, the second while the first is there: 2 x 2 announcements, 2 answers of the first
    // to itself, and 2 of both to the second.
    EXPECT_THAT(lines_of(capacity::start, {"people=2", "day=usual", "over=60"}),
                AllOf(HasSubstr("value,datagrams,10\n"), HasSubstr("value,complete_lists,2\n")));
}

TEST(CapacityOfASegment, AStartThatIsNotOverAtTheLimitSaysSo)
{
    EXPECT_THAT(lines_of(capacity::start, {"people=10", "over=1", "limit=5"}),
                AllOf(HasSubstr("value,quiet,-1\n"), HasSubstr("value,end,5\n"),
                      Not(HasSubstr("refresh"))));
}

TEST(CapacityOfASegment, ARefreshCompletesTheListsThatNewcomersEmptied)
{
    EXPECT_THAT(lines_of(capacity::start, {"people=20", "over=1"}),
                AllOf(HasSubstr("value,lists,-1\n"), HasSubstr("value,complete_directories,20\n"),
                      HasSubstr(",20,0\n")));
}

TEST(CapacityOfASegment, AMessageIsOneDatagramForOneAndForAll)
{
    EXPECT_THAT(lines_of(capacity::message, {"people=10"}),
                AllOf(HasSubstr("cost,to one,1,"), HasSubstr("cost,to all,1,"),
                      HasSubstr("cost,to a group of five,5,"),
                      HasSubstr("cost,to all and everybody replies to all,10,"),
                      HasSubstr("cost,to all while all others are away,10,")));
}

TEST(CapacityOfASegment, TheOptionReplyToAllLeavesAwayAnswersToTheAsker)
{
    auto const away = [](std::string const& lines) {
        return lines.substr(lines.find("cost,to all while one in ten is away"));
    };

    EXPECT_EQ(away(lines_of(capacity::message, {"people=10"})),
              away(lines_of(capacity::message, {"people=10", "replytoall=1"})));
}

TEST(CapacityOfASegment, WithoutLossEveryMessageArrives)
{
    EXPECT_THAT(lines_of(capacity::arrivals, {"people=5", "messages=3"}),
                AllOf(HasSubstr("value,to_one,3\n"), HasSubstr("value,to_all,12\n"),
                      HasSubstr("value,to_all_and_heard_by_all,3\n")));
}

TEST(CapacityOfASegment, ACheckOfEachProgramEveryHalfHourIsARoundOfAllAnswers)
{
    // Two rounds of each: an announcement and ten answers.
    EXPECT_THAT(lines_of(capacity::check, {"people=10", "hours=1"}),
                HasSubstr("value,datagrams_an_hour,220\n"));
    EXPECT_THAT(lines_of(capacity::check, {"people=10", "hours=1", "option=0"}),
                HasSubstr("value,datagrams_an_hour,0\n"));
}

} // namespace
