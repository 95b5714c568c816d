#include "network/identity.h"
#include "tests/unit/fakes.h"

#include <gtest/gtest.h>

namespace {

using unit::western;

TEST(Identity, IsComputerAndUserInBracketsAndUpperCase)
{
    unit::FakeEnvironment environment;
    environment.values = {{"computername", "Room12"}, {"username", "Alic\xE9"}};

    EXPECT_EQ(network::own_identity(environment, western), "[ROOM12\\ALIC\xC9]");
}

TEST(Identity, AnAccountKeepsTheCaseOfTheSurroundings)
{
    unit::FakeEnvironment environment;
    environment.values = {{"computername", "Room12"}, {"username", "alice"}};

    EXPECT_EQ(network::own_account(environment), "Room12\\alice");
}

TEST(Identity, FollowsARenamedComputerAtTheNextUse)
{
    unit::FakeEnvironment environment;
    EXPECT_EQ(network::own_identity(environment, western), "[ROOM12\\ALICE]");

    environment.values["computername"] = "room13";

    EXPECT_EQ(network::own_identity(environment, western), "[ROOM13\\ALICE]");
}

TEST(Identity, WithoutNamesIsABackslash)
{
    unit::FakeEnvironment environment;
    environment.values.clear();

    EXPECT_EQ(network::own_identity(environment, western), "[\\]");
}

TEST(Identity, ABracketInANameStays)
{
    EXPECT_EQ(network::identity_of("room]12\\a[b", western), "[ROOM]12\\A[B]");
}

} // namespace
