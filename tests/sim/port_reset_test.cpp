#include "flows.h"

namespace {

using namespace flows;
using platform::Answer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// With the option "Reset port after each transmission" every ending of a send that has a name
/// resets the ports, and announces.
class PortReset : public TwoPeople {
protected:
    PortReset() : TwoPeople({.settings = {{"RESETPORTS", "1"}}}) {}

    void expect_reset()
    {
        EXPECT_THAT(ports(), ElementsAre(4111, 4112));
        EXPECT_THAT(office.segment.texts_from("ROOM12").back(),
                    announcement(alice_id, "ALICE MEYER"));
        EXPECT_EQ(frmMain.statustext.caption(), "Reset Port");
    }

    [[nodiscard]] std::vector<int> ports() const
    {
        std::vector<int> bound;
        for (auto const& each : office.segment.bound()) {
            bound.push_back(each.port);
        }
        return bound;
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(PortReset, FollowsAMessageToOneUser)
{
    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(office.segment.texts_from("ROOM12"),
                ElementsAre(message(alice_id, bob_id, "ALICE MEYER> Hello"),
                            announcement(alice_id, "ALICE MEYER")));
    expect_reset();
}

TEST_F(PortReset, FollowsAMessageToAll)
{
    alice.person.tick_all();
    alice.person.send("Hello");

    EXPECT_THAT(office.segment.texts_from("ROOM12"), SizeIs(2));
    expect_reset();
}

TEST_F(PortReset, FollowsAMessageToSeveralOnce)
{
    alice.person.pick({"Alice Meyer", "Bob"});
    alice.person.send("Hello");

    EXPECT_THAT(office.segment.texts_from("ROOM12"), SizeIs(3));
    expect_reset();
}

TEST_F(PortReset, FollowsAnEmptyDraft)
{
    alice.person.pick("Bob");
    alice.person.click(frmMain.sendbtn);

    expect_reset();
}

TEST_F(PortReset, FollowsADraftWithoutARecipient)
{
    alice.person.send("Hello");

    expect_reset();
    EXPECT_EQ(frmMain.messagetext.text(), "Hello");
}

TEST_F(PortReset, FollowsAMarkWithoutASelection)
{
    alice.person.pick("Bob");
    alice.person.pick_nobody();
    alice.person.send("Hello");

    expect_reset();
}

TEST_F(PortReset, FollowsATabBeyondTheGroups)
{
    alice.person.open_tab(2);
    alice.person.send("Hello");

    expect_reset();
}

TEST_F(PortReset, DoesNotFollowAFailureOfAnyOtherKind)
{
    alice.host.send_failure = text::Failure("Operation not permitted", 1, "send");
    alice.boxes.will_answer(Answer::ok);

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(ports(), IsEmpty());
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
}

TEST_F(PortReset, FollowsAMissingNetworkAndFailsWithoutAHandler)
{
    // The reset announces itself, and the network is still missing.
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(ports(), ElementsAre(4111, 4112));
    EXPECT_EQ(alice.report(), "No route to host.");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(PortReset, FollowsAMissingNetworkThatIsBackWhenTheBoxCloses)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok).meanwhile([&] { alice.plug_in(); });

    alice.person.send_to("Bob", "Hello");

    expect_reset();
}

TEST_F(PortReset, ThatFindsAPortTakenEndsTheProgramAsTheSendDoes)
{
    alice.host.taken = {4111};
    alice.boxes.will_answer(Answer::ok);

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4111 is in use."));
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(PortReset, ThatFindsTheSendingPortTakenTellsItsNumber)
{
    alice.host.taken = {4112};
    alice.boxes.will_answer(Answer::ok);

    alice.person.send_to("Bob", "Hello");

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4112 is in use."));
}

TEST_F(PortReset, DoesNotDisturbTheMessageThatWentBefore)
{
    alice.person.send_to("Bob", "Hello");
    office.settle();

    EXPECT_EQ(bob.popup(0).message.text(), "ALICE MEYER> Hello");
}

TEST_F(PortReset, GivesTheFocusBackInTheEnd)
{
    auto const focus = frmMain.messagetext.focus.requests();

    alice.person.send_to("Bob", "Hello");

    EXPECT_GT(frmMain.messagetext.focus.requests(), focus + 1);
}

/// What a send does behind its datagrams, in order.
class EndOfASend : public PortReset {
protected:
    EndOfASend()
    {
        frmMain.cleanlog.attach([this] { seen.push_back("log trim"); });
        frmMain.messagetext.focus.got.attach([this] { seen.push_back("focus"); });
        frmMain.Command6.attach([this] { seen.push_back("reset"); });
    }

    void send()
    {
        alice.enter([this] { frmMain.messagetext.set_text("Hello"); });
        seen.clear();
        alice.person.click(frmMain.sendbtn);
    }

    Lines seen;
};

TEST_F(EndOfASend, ToUsersGivesTheFocusBackBehindTheReset)
{
    alice.person.pick("Bob");
    send();

    EXPECT_THAT(seen, ElementsAre("log trim", "reset", "focus"));
}

TEST_F(EndOfASend, ToAllGivesTheFocusBackBeforeTheReset)
{
    alice.person.tick_all();
    send();

    EXPECT_THAT(seen, ElementsAre("log trim", "focus", "reset"));
}

TEST_F(EndOfASend, ToAGroupGivesTheFocusBackBehindTheReset)
{
    frmMain.List1.add("Team" + std::string(30, ' ') + "3");
    alice.person.open_tab(1);
    alice.person.pick_group("Team");
    send();

    EXPECT_THAT(seen, ElementsAre("log trim", "reset", "focus"));
}

TEST_F(EndOfASend, WithoutANetworkGivesTheFocusBackBehindTheReset)
{
    alice.unplug();
    alice.boxes.will_answer(Answer::ok);
    alice.person.pick("Bob");
    send();

    EXPECT_THAT(seen, ElementsAre("log trim", "reset", "focus"));
}

TEST_F(EndOfASend, WithNothingToSendIsTheResetAlone)
{
    alice.person.pick("Bob");
    seen.clear();
    alice.person.click(frmMain.sendbtn);

    EXPECT_THAT(seen, ElementsAre("reset"));
}

} // namespace
