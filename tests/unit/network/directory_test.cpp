#include "network/directory.h"
#include "tests/unit/fakes.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace {

using unit::western;

class Directory : public testing::Test {
protected:
    void knows(std::initializer_list<std::string_view> rows)
    {
        for (auto const row : rows) {
            userlist.add(row);
        }
    }

    [[nodiscard]] std::string lookup(std::string_view name) const
    {
        return network::lookupuser(name, userlist, western);
    }

    controls::ListBox userlist{western};
};

TEST_F(Directory, GivesTheIdentityBehindAName)
{
    knows({"[ROOM07\\BOB]=BOB", "[ROOM12\\ALICE]=ALICE MEYER"});

    EXPECT_EQ(lookup("ALICE MEYER"), "[ROOM12\\ALICE]");
    EXPECT_EQ(lookup("Bob"), "[ROOM07\\BOB]");
    EXPECT_EQ(lookup("bob"), "[ROOM07\\BOB]");
}

TEST_F(Directory, ANameFindsALongerNameThatEndsInIt)
{
    knows({"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM33\\CARL]=MEYER"});

    EXPECT_EQ(lookup("MEYER"), "[ROOM12\\ALICE]");
}

TEST_F(Directory, TheFirstRowInTheListsOrderWins)
{
    knows({"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM05\\CARL]=MEYER"});

    EXPECT_EQ(lookup("MEYER"), "[ROOM05\\CARL]");
}

TEST_F(Directory, TheTailOfTheWholeRowCounts)
{
    knows({"[ROOM07\\BOB]=BOB"});

    EXPECT_EQ(lookup("]=Bob"), "[ROOM07\\BOB]");
    EXPECT_EQ(lookup("[ROOM07\\BOB]=BOB"), "[ROOM07\\BOB]");
    EXPECT_EQ(lookup("x[ROOM07\\BOB]=BOB"), "[---]");
}

TEST_F(Directory, AnEmptyNameFindsTheFirstRow)
{
    knows({"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM07\\BOB]=BOB"});

    EXPECT_EQ(lookup(""), "[ROOM07\\BOB]");
}

TEST_F(Directory, NobodyHasAnEmptyNameInAnEmptyList)
{
    EXPECT_EQ(lookup(""), "[---]");
}

TEST_F(Directory, AStrangerIsNobody)
{
    knows({"[ROOM07\\BOB]=BOB"});

    EXPECT_EQ(lookup("CARL"), "[---]");
    EXPECT_EQ(lookup("BO"), "[---]");
}

TEST_F(Directory, TheNameAllIsEverybody)
{
    knows({"[ROOM07\\BOB]=BOB"});

    EXPECT_EQ(lookup("All"), "[ALL]");
    EXPECT_EQ(lookup("ALL"), "[ALL]");
    EXPECT_EQ(lookup("all "), "[---]");
}

TEST_F(Directory, MarshallCatchesWhatIsMeantForAll)
{
    knows({"[ROOM07\\BOB]=BOB", "[ROOM21\\JIM]=JIM MARSHALL"});

    EXPECT_EQ(lookup("All"), "[ROOM21\\JIM]");
}

TEST_F(Directory, ARowWithoutASeparatorIsItsOwnIdentity)
{
    knows({"ALICE", "[ROOM12\\ALICE]=MEYER"});

    EXPECT_EQ(lookup("Alice"), "ALICE");
    EXPECT_EQ(lookup(""), "[ROOM12\\ALICE]");
}

TEST_F(Directory, TheIdentityEndsAtTheFirstSeparator)
{
    knows({"[ROOM07\\BOB]=2+2=4"});

    EXPECT_EQ(lookup("2+2=4"), "[ROOM07\\BOB]");
    EXPECT_EQ(lookup("4"), "[ROOM07\\BOB]");
    EXPECT_EQ(network::row_name("[ROOM07\\BOB]=2+2=4"), "2+2=4");
}

TEST_F(Directory, TheResultIsInUpperCase)
{
    knows({"[room07\\b\xF6"
           "b]=Bob"});

    EXPECT_EQ(lookup("bob"), "[ROOM07\\B\xD6"
                             "B]");
}

TEST_F(Directory, AccentedLettersAreComparedWhateverTheirCase)
{
    knows({"[ROOM08\\ZOE]=ZO\xCB"});

    EXPECT_EQ(lookup("Zo\xEB"), "[ROOM08\\ZOE]");
    EXPECT_EQ(lookup("Zoe"), "[---]");
}

TEST_F(Directory, ASendersNameIsThatOfItsRow)
{
    knows({"[ROOM07\\BOB]=BOB", "[ROOM12\\ALICE]=ALICE MEYER"});

    EXPECT_EQ(network::sender_name("[ROOM12\\ALICE]", userlist), "ALICE MEYER");
}

TEST_F(Directory, AnUnknownSenderIsShownAsItIs)
{
    knows({"[ROOM07\\BOB]=BOB"});

    EXPECT_EQ(network::sender_name("[ROOM12\\ALICE]", userlist), "[ROOM12\\ALICE]");
    EXPECT_EQ(network::sender_name("[room07\\bob]", userlist), "[room07\\bob]");
}

TEST_F(Directory, ASenderIsTheFirstRowThatHoldsItAnywhere)
{
    knows({"[ROOM07\\BOB]=FRIEND OF [ROOM12\\ALICE]", "[ROOM12\\ALICE]=ALICE"});

    EXPECT_EQ(network::sender_name("[ROOM12\\ALICE]", userlist), "FRIEND OF [ROOM12\\ALICE]");
    EXPECT_EQ(network::sender_name("]", userlist), "FRIEND OF [ROOM12\\ALICE]");
}

TEST_F(Directory, ASenderInARowWithoutASeparatorIsTheWholeRow)
{
    knows({"ALICE]"});

    EXPECT_EQ(network::sender_name("ALICE]", userlist), "ALICE]");
    EXPECT_EQ(network::row_name("ALICE]"), "ALICE]");
    EXPECT_EQ(network::row_name("ALICE="), "");
}

} // namespace
