#include "text/failure.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using text::Failure;

TEST(Failure, CarriesTheTextThatFlowsCompareAndTheNumberThatBoxesShow)
{
    Failure const failure(text::address_in_use, 98, "DiscoveryPort");

    EXPECT_EQ(failure.text, "Address in use");
    EXPECT_EQ(failure.number, 98);
    EXPECT_EQ(failure.origin, "DiscoveryPort");
    EXPECT_STREQ(failure.what(), "Address in use");
}

TEST(Failure, TheLostNetworkHasItsOwnText)
{
    EXPECT_EQ(text::no_route_to_host, "No route to host.");
}

TEST(Failure, AFailedStepIsSkippedFromWhereItFailed)
{
    int done = 0;
    bool const whole = text::attempt([&done] {
        ++done;
        throw Failure("Type mismatch", 13, "step");
    });

    EXPECT_FALSE(whole);
    EXPECT_EQ(done, 1);
}

TEST(Failure, AStepThatRunsToItsEndIsTold)
{
    EXPECT_TRUE(text::attempt([] {}));
}

TEST(Failure, OurOwnMistakesAreNotSkipped)
{
    EXPECT_THROW(text::attempt([] { throw std::logic_error("mistake"); }), std::logic_error);
}

} // namespace
