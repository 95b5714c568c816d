#include "sim/office.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using sim::Office;
using testing::ElementsAre;

TEST(Presence, TheSecondAnswerPutsANewcomerOnTheList)
{
    Office office;
    office.peer("ROOM12", "alice", "Alice Meyer");
    auto& bob = office.newcomer("ROOM07", "bob", "Bob");

    office.settle();

    EXPECT_THAT(bob.frmMain().allusers.rows(), ElementsAre("Alice Meyer", "Bob"));
}

} // namespace
