#include "demo/overheard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct WhatIsOverheard : testing::Test {
    WhatIsOverheard()
    {
        office.settle();
        EXPECT_THAT(overheard.take(), IsEmpty()) << "presence is no talk";
    }

    sim::Office office;
    sim::Setup const acquainted{.users = {"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM07\\BOB]=BOB"}};
    sim::Peer& alice = office.peer("ROOM12", "alice", "Alice Meyer", acquainted);
    sim::Peer& bob = office.peer("ROOM07", "bob", "Bob", acquainted);
    demo::Overheard overheard{office};
};

TEST_F(WhatIsOverheard, IsEachMessageOnceWithItsReader)
{
    alice.person.send_to("Bob", "Are you there?\r\nCome!");
    office.settle();

    EXPECT_THAT(overheard.take(), ElementsAre("ALICE MEYER> Are you there? / Come!  (to Bob)"));
    EXPECT_THAT(overheard.take(), IsEmpty());
}

TEST_F(WhatIsOverheard, OfAMessageToAllNamesNobody)
{
    bob.person.tick_all();
    bob.person.send("Cake!");
    office.settle();

    EXPECT_THAT(overheard.take(), ElementsAre("BOB> (To All) Cake!"));
}

TEST_F(WhatIsOverheard, OfOneToSeveralNamesAllAndAStrangerByTheIdentity)
{
    office.segment.inject("[X\\Y][ROOM07\\BOB]Hello");
    office.segment.inject("[X\\Y][ROOM99\\EVE]Hello");

    EXPECT_THAT(overheard.take(), ElementsAre("Hello  (to Bob, [ROOM99\\EVE])"));
}

} // namespace
