#include "flows.h"

namespace {

using namespace flows;
using testing::ElementsAre;
using testing::SizeIs;

class SendToAll : public TwoPeople {
protected:
    [[nodiscard]] std::vector<std::string> sent() const
    {
        return office.segment.texts_from("ROOM12");
    }

    forms::FrmMain& frmMain = alice.frmMain();
    controls::TextBox& draft = frmMain.messagetext;
};

TEST_F(SendToAll, ToAllPutsItsNoteIntoTheRecords)
{
    alice.person.tick_all();

    alice.person.send("Server restarts at 5");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, "[ALL]",
                                            "ALICE MEYER> (To All) Server restarts at 5")));
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to ALL");
    EXPECT_EQ(alice.log().back(),
              logged("Msg to   ALL\t\r\nALICE MEYER> (To All) Server restarts at 5\r\n---"));
    EXPECT_EQ(alice.history().row(1).at(3), "ALL");
    EXPECT_EQ(alice.history().row(1).at(5), "ALICE MEYER> (To All) Server restarts at 5");
    EXPECT_EQ(draft.text(), "");
}

TEST_F(SendToAll, ToAllUnticksItself)
{
    alice.person.tick_all();
    EXPECT_FALSE(frmMain.allusers.enabled);

    alice.person.send("Hello");

    EXPECT_EQ(frmMain.Checkallusers.value(), 0);
    EXPECT_TRUE(frmMain.allusers.enabled);
    alice.person.send("Hello again");
    EXPECT_THAT(sent(), SizeIs(1));
}

TEST_F(SendToAll, UntickingGivesTheListBack)
{
    alice.person.tick_all();
    alice.person.tick_all();

    EXPECT_TRUE(frmMain.allusers.enabled);
}

TEST_F(SendToAll, ToAllReachesEverybodyButTheSender)
{
    alice.person.tick_all();
    alice.person.send("Hello");
    office.settle();

    EXPECT_EQ(bob.popup(0).message.text(), "ALICE MEYER> (To All) Hello");
    EXPECT_EQ(bob.popup(0).Label3.caption(), "(Sent to ALL)");
    EXPECT_FALSE(alice.popup(0).window.visible());
}

TEST_F(SendToAll, TheDraftIsCutBeforeTheNoteIsPutInFront)
{
    alice.person.tick_all();

    alice.person.send(std::string(971, 'x'));

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, "[ALL]",
                                            "ALICE MEYER> (To All) " + std::string(970, 'x'))));
}

TEST_F(SendToAll, AUserCalledAllIsEverybody)
{
    frmMain.allusers.add("All");
    alice.person.pick("All");

    alice.person.send("Hello");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, "[ALL]", "ALICE MEYER> Hello")));
}

TEST_F(SendToAll, AMarshallCatchesWhatIsMeantForAll)
{
    frmMain.userlist.add("[ROOM99\\MARSHALL]=MARSHALL");
    frmMain.allusers.add("All");
    alice.person.pick("All");

    alice.person.send("Hello");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, "[ROOM99\\MARSHALL]", "ALICE MEYER> Hello")));
}

} // namespace
