#include "stories.h"

namespace {

using namespace flows;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class IdentitySearch : public AliceListening {};

TEST_F(IdentitySearch, TheOwnEntryIsKnownByItsNameNotByItsIdentity)
{
    alice.settings().showme.set(0);
    frmMain.allusers.clear();

    hear(answer("[ROOM55\\NAMESAKE]", "ALICE MEYER"));
    hear(answer("[ROOM55\\NAMESAKE]", "ALICE MEYER"));

    EXPECT_THAT(directory(), Contains("[ROOM55\\NAMESAKE]=ALICE MEYER"));
    EXPECT_THAT(on_show(), IsEmpty());
}

TEST_F(IdentitySearch, TwoPeersOfOneIdentityAreOneUser)
{
    hear(answer(bob_id, "BERT"));
    hear(answer(bob_id, "BOB"));

    EXPECT_THAT(directory(), SizeIs(3));
    EXPECT_THAT(directory(), Contains("[ROOM07\\BOB]=BOB"));
}

TEST_F(IdentitySearch, TheFirstRowThatHoldsTheIdentityAnywhereIsTheOneThatGoes)
{
    // Identities are not tested for brackets, so a short one lies inside a longer one.
    hear(answer("ROOM07", "PRINTER"));

    EXPECT_THAT(directory(), ElementsAre("[ROOM12\\ALICE]=ALICE MEYER", "[ROOM33\\CARL]=CARL DUNN",
                                         "ROOM07=PRINTER"));
}

TEST_F(IdentitySearch, AnIdentityFoundInsideALongerOneOfTheSameNameIsKnown)
{
    frmMain.allusers.clear();

    hear(answer("ROOM07", "BOB"));

    EXPECT_THAT(directory(), SizeIs(3));
    EXPECT_THAT(on_show(), ElementsAre("Bob"));
}

TEST_F(IdentitySearch, AnIdentityFoundInANameCountsAsFound)
{
    hear(answer("CARL", "SOMEBODY"));

    EXPECT_THAT(directory(), Not(Contains("[ROOM33\\CARL]=CARL DUNN")));

    hear(answer("MEYER", "ALICE MEYER"));
    EXPECT_THAT(directory(), Not(Contains("MEYER=ALICE MEYER")));
}

TEST_F(IdentitySearch, AnEmptyIdentityIsFoundInTheFirstRow)
{
    hear("***=X");

    EXPECT_THAT(directory(),
                ElementsAre("=X", "[ROOM12\\ALICE]=ALICE MEYER", "[ROOM33\\CARL]=CARL DUNN"));
}

} // namespace
