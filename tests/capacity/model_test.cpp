#include "bench/capacity/scenarios.h"
#include "tests/capacity/lines.h"

namespace {

using capacity_tests::lines_of;
using capacity_tests::Told;

class ModelOfACrowd : public testing::TestWithParam<Told> {};

TEST_P(ModelOfACrowd, WritesTheLinesOfTheCrowdOfPrograms)
{
    auto told = GetParam();
    auto const programs = lines_of(capacity::start, told);
    told.emplace_back("play=model");

    EXPECT_EQ(lines_of(capacity::start, told), programs);
}

INSTANTIATE_TEST_SUITE_P(
    Starts, ModelOfACrowd,
    testing::Values(Told{"people=2"}, Told{"people=10", "seed=2"},
                    Told{"people=20", "over=1", "seed=3"}, Told{"people=20", "loss=0.2"},
                    Told{"people=30", "day=usual", "loss=0.05", "over=10"},
                    Told{"people=20", "day=usual", "newcomers=5", "order=first"},
                    Told{"people=20", "refresh=all", "over=5"}, Told{"people=20", "limit=30"}));

TEST(ModelOfAnOffice, ChecksForUsersWhenTheProgramsDo)
{
    EXPECT_EQ(lines_of(capacity::check, {"people=20", "hours=2", "play=model"}),
              lines_of(capacity::check, {"people=20", "hours=2"}));
}

} // namespace
