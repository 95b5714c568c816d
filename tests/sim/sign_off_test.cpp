#include "flows.h"

namespace {

using namespace flows;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SignOff : public TwoPeople {
protected:
    void hear(std::string_view datagram)
    {
        office.segment.inject_to("ROOM12", datagram);
        office.run_for(2 * tick);
    }

    /// Makes somebody known and puts the name on show.
    void meet(std::string_view id, std::string_view name)
    {
        hear(answer(id, name));
        hear(answer(id, name));
    }

    forms::FrmMain& frmMain = alice.frmMain();
    controls::ListBox& allusers = frmMain.allusers;
};

TEST_F(SignOff, IsToldInTheStatusLineAndTakesNobodyOffTheList)
{
    hear(sign_off(bob_id, "BOB"));

    EXPECT_EQ(frmMain.statustext.caption(), "BOB has signed off");
    EXPECT_THAT(allusers.rows(), ElementsAre("Alice Meyer", "Bob"));
    EXPECT_THAT(frmMain.userlist.rows(), SizeIs(3));
}

TEST_F(SignOff, IsGoneFromTheStatusLineWithTheNextTickOfTheWatch)
{
    hear(sign_off(bob_id, "BOB"));

    office.run_for(watch);

    EXPECT_EQ(frmMain.statustext.caption(), "Vexlo - Alice Meyer Listening");
}

TEST_F(SignOff, ANameThatProperCaseLeavesAloneIsTakenOff)
{
    for (std::string const name : {"7", "A", "42 1/2"}) {
        meet("[ROOM77\\SEVEN]", name);
        EXPECT_THAT(allusers.rows(), ElementsAre(name));

        hear(sign_off("[ROOM77\\SEVEN]", name));

        EXPECT_THAT(allusers.rows(), IsEmpty()) << name;
        EXPECT_EQ(frmMain.statustext.caption(), name + " has signed off");
    }
}

TEST_F(SignOff, TheRowStaysForGood)
{
    meet("[ROOM77\\SEVEN]", "7");
    auto const rows = frmMain.userlist.rows();
    alice.journal.switch_on();

    hear(sign_off("[ROOM77\\SEVEN]", "7"));

    EXPECT_EQ(frmMain.userlist.rows(), rows);
    EXPECT_THAT(alice.journal.lines(), IsEmpty());
}

TEST_F(SignOff, IsReadInAnyCase)
{
    hear("-**[room07\\bob]=bob");

    EXPECT_EQ(frmMain.statustext.caption(), "BOB has signed off");
}

TEST_F(SignOff, OfAnUnknownUserShowsNothing)
{
    frmMain.statustext.set_caption("as it was");

    hear(sign_off("[ROOM55\\DORA]", "DORA"));

    EXPECT_EQ(frmMain.statustext.caption(), "as it was");
}

TEST_F(SignOff, UnderAnotherNameShowsNothing)
{
    frmMain.statustext.set_caption("as it was");

    hear(sign_off(bob_id, "ROBERT"));

    EXPECT_EQ(frmMain.statustext.caption(), "as it was");
}

TEST_F(SignOff, TheSearchGoesOnBehindARowOfAnotherName)
{
    // "ROOM" lies inside every row; the last one has the name.
    hear(sign_off("ROOM", "CARL DUNN"));

    EXPECT_EQ(frmMain.statustext.caption(), "CARL DUNN has signed off");
}

TEST_F(SignOff, EveryEqualRowIsTakenOff)
{
    meet("[ROOM77\\SEVEN]", "7");
    allusers.add("7");
    allusers.add("70");

    hear(sign_off("[ROOM77\\SEVEN]", "7"));

    EXPECT_THAT(allusers.rows(), ElementsAre("70"));
}

TEST_F(SignOff, IsNotAnswered)
{
    office.segment.forget();

    office.segment.inject_to("ROOM12", sign_off(bob_id, "BOB"));
    office.run_for(2 * tick);

    EXPECT_THAT(office.segment.texts_from("ROOM12"), IsEmpty());
}

} // namespace
