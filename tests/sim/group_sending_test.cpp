#include "flows.h"

namespace {

using namespace flows;
using platform::Answer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class GroupSending : public TwoPeople {
protected:
    GroupSending()
    {
        frmMain.List1.clear();
        frmMain.List1.add("Team" + std::string(30, ' ') + "3");
        frmMain.List1.add("Board" + std::string(30, ' ') + "7");
        auto& team = alice.forms().groups.group.at(3);
        team.add("Bob");
        team.add("Carl Dunn");
        alice.person.open_tab(1);
    }

    [[nodiscard]] std::vector<std::string> sent() const
    {
        return office.segment.texts_from("ROOM12");
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(GroupSending, SendsTheBareTextToEachMember)
{
    alice.person.pick_group("Team");

    alice.person.send("Lunch at noon?");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "Lunch at noon?"),
                                    message(alice_id, carl_id, "Lunch at noon?")));
    EXPECT_EQ(frmMain.messagetext.text(), "");
}

TEST_F(GroupSending, LeavesOneRowOfLogAndHistoryForTheGroup)
{
    alice.person.pick_group("Team");
    auto const focus = frmMain.messagetext.focus.requests();

    alice.person.send("Lunch at noon?");

    EXPECT_THAT(alice.log(), SizeIs(2));
    EXPECT_EQ(alice.log().back(), logged("Msg to   TEAM\t\r\nLunch at noon?\r\n---"));
    ASSERT_EQ(alice.history().count(), 1);
    EXPECT_EQ(alice.history().row(1).at(2), "To");
    EXPECT_EQ(alice.history().row(1).at(3), "Team");
    EXPECT_EQ(alice.history().row(1).at(5), "Lunch at noon?");
    EXPECT_EQ(alice.history().row(1).at(7), "1");
    EXPECT_EQ(alice.history().row(1).at(8), "1");
    EXPECT_THAT(alice.files.content("logs/logtemp.txt"), testing::HasSubstr("Msg to   TEAM"));
    EXPECT_GT(frmMain.messagetext.focus.requests(), focus);
}

TEST_F(GroupSending, SaysNothingInTheStatusLine)
{
    alice.person.pick_group("Team");
    frmMain.statustext.set_caption("as it was");

    alice.person.send("Lunch?");

    EXPECT_EQ(frmMain.statustext.caption(), "as it was");
}

TEST_F(GroupSending, SkipsAnUnknownMemberSilently)
{
    alice.forms().groups.group.at(3).add("Ghost");
    alice.person.pick_group("Team");

    alice.person.send("Lunch?");

    EXPECT_THAT(sent(), SizeIs(2));
    EXPECT_EQ(alice.history().row(1).at(3), "Team");
}

TEST_F(GroupSending, AnEmptyGroupSendsNothingButIsRecorded)
{
    alice.person.pick_group("Board");

    alice.person.send("Lunch?");

    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(alice.history().row(1).at(3), "Board");
    EXPECT_EQ(frmMain.messagetext.text(), "");
}

TEST_F(GroupSending, AMemberCalledAllIsEverybody)
{
    alice.forms().groups.group.at(7).add("All");
    alice.person.pick_group("Board");

    alice.person.send("Lunch?");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, "[ALL]", "Lunch?")));
}

TEST_F(GroupSending, ThePopupShowsItWholeAndTheHistoryLosesItsFirstCharacter)
{
    alice.person.pick_group("Team");
    alice.person.send("Lunch?");
    office.settle();

    EXPECT_EQ(bob.popup(0).message.text(), "Lunch?");
    EXPECT_EQ(bob.history().row(1).at(5), "unch?");
}

TEST_F(GroupSending, ANameMayHoldBlanks)
{
    frmMain.List1.add("The Old Team" + std::string(30, ' ') + "3");
    alice.person.pick_group("The Old Team");

    alice.person.send("Lunch?");

    EXPECT_EQ(alice.history().row(1).at(3), "The Old Team");
    EXPECT_THAT(sent(), SizeIs(2));
}

TEST_F(GroupSending, WithoutARowItFailsInAWayOfItsOwn)
{
    alice.boxes.will_answer(Answer::ok);

    alice.person.send("Lunch?");

    EXPECT_THAT(alice.boxes.texts(),
                ElementsAre("Error #5\r\nError :Invalid procedure call or argument"));
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_EQ(alice.log().back(), logged("Network Error Invalid procedure call or argument"));
    EXPECT_EQ(frmMain.messagetext.text(), "");
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_TRUE(alice.running());
}

TEST_F(GroupSending, TheTickForAllMeansNothingOnThisTab)
{
    frmMain.Checkallusers.set(1);
    alice.person.pick_group("Team");

    alice.person.send("Lunch?");

    EXPECT_THAT(sent(), SizeIs(2));
    EXPECT_EQ(frmMain.Checkallusers.value(), 1);
}

TEST_F(GroupSending, ResetsThePortsBehindAllMembers)
{
    alice.settings().resetports.set(1);
    alice.person.pick_group("Team");

    alice.person.send("Lunch?");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "Lunch?"),
                                    message(alice_id, carl_id, "Lunch?"),
                                    announcement(alice_id, "ALICE MEYER")));
    EXPECT_EQ(frmMain.statustext.caption(), "Reset Port");
}

} // namespace
