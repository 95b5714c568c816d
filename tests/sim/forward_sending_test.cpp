#include "flows.h"

namespace {

using namespace flows;
using testing::ElementsAre;

/// A draft that is a forward; how it became one is another story.
class ForwardSending : public TwoPeople {
protected:
    ForwardSending()
    {
        frmMain.fwd.set(1);
        frmMain.fwd.caption = "CARL DUNN";
        frmMain.qb.at(2).caption = "Lunch";
        frmMain.qb.at(3).caption = "";
        for (auto& button : frmMain.qb) {
            button.enabled = button.caption.empty();
        }
    }

    [[nodiscard]] std::vector<std::string> sent() const
    {
        return office.segment.texts_from("ROOM12");
    }

    void expect_live_buttons()
    {
        EXPECT_TRUE(frmMain.qb.at(2).enabled);
        EXPECT_FALSE(frmMain.qb.at(3).enabled);
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(ForwardSending, GoesOutUnderTheFirstSendersIdentityAndName)
{
    alice.person.send_to("Bob", "Lunch?");

    EXPECT_THAT(sent(), ElementsAre(message(carl_id, bob_id, "CARL DUNN> Lunch?")));
    EXPECT_EQ(alice.log().back(), logged("Fwd to   BOB\t\r\nLunch?\r\n---"));
    EXPECT_EQ(alice.history().row(1).at(2), "To");
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to Bob");
}

TEST_F(ForwardSending, EndsWithTheSend)
{
    alice.person.send_to("Bob", "Lunch?");

    EXPECT_EQ(frmMain.fwd.value(), 0);
    expect_live_buttons();
}

TEST_F(ForwardSending, GoesToSeveral)
{
    alice.person.pick({"Alice Meyer", "Bob"});
    alice.person.send("Lunch?");

    EXPECT_THAT(sent(), ElementsAre(message(carl_id, alice_id, "CARL DUNN> Lunch?"),
                                    message(carl_id, bob_id, "CARL DUNN> Lunch?")));
}

TEST_F(ForwardSending, PopsUpUnderTheFirstSendersName)
{
    alice.person.send_to("Bob", "Lunch?");
    office.settle();

    EXPECT_EQ(bob.popup(0).messagefrom.caption(), "Carl Dunn");
}

TEST_F(ForwardSending, OfAnUnknownSenderGoesOutUnderNobody)
{
    frmMain.fwd.caption = "GHOST";

    alice.person.send_to("Bob", "Boo");

    EXPECT_THAT(sent(), ElementsAre(message("[---]", bob_id, "GHOST> Boo")));
}

TEST_F(ForwardSending, ToAllIsAPlainMessageAndStaysAForward)
{
    alice.person.tick_all();
    alice.person.send("Lunch?");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, "[ALL]", "ALICE MEYER> (To All) Lunch?")));
    EXPECT_EQ(frmMain.fwd.value(), 1);
    EXPECT_FALSE(frmMain.qb.at(2).enabled);
}

TEST_F(ForwardSending, ToAGroupIsAPlainMessageAndStaysAForward)
{
    frmMain.List1.add("Team" + std::string(30, ' ') + "3");
    alice.forms().groups.group.at(3).clear();
    alice.forms().groups.group.at(3).add("Bob");
    alice.person.open_tab(1);
    alice.person.pick_group("Team");

    alice.person.send("Lunch?");

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "Lunch?")));
    EXPECT_EQ(frmMain.fwd.value(), 1);
}

TEST_F(ForwardSending, WithoutARecipientStaysAForward)
{
    alice.person.send("Lunch?");

    EXPECT_EQ(frmMain.fwd.value(), 1);
}

TEST_F(ForwardSending, IsGivenUpByTheClearButton)
{
    alice.person.type("Lunch?");

    alice.person.click(frmMain.Command3);

    EXPECT_EQ(frmMain.fwd.value(), 0);
    EXPECT_EQ(frmMain.messagetext.text(), "");
    expect_live_buttons();
}

} // namespace
