#include "stories.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class QueueRows : public AlicesQueue {};

TEST_F(QueueRows, APresenceRowWithoutAnEqualSignBlocksItForGood)
{
    for (std::string const row : {"***", "***ABC", "**-ABC", "-**ABC", "***][X]hi"}) {
        sim::Office another;
        auto& peer = another.peer("ROOM12", "alice", "Alice", {.users = known_users});
        another.settle();
        another.segment.inject(row);
        another.segment.inject(message(bob_id, alice_id, "Bob> Hello"));

        EXPECT_FALSE(another.settle(1h)) << row;

        EXPECT_THAT(peer.frmMain().cue, SizeIs(2)) << row;
        EXPECT_EQ(peer.frmMain().cue.front(), row);
        EXPECT_FALSE(peer.popup(0).window.visible()) << row;
    }
}

TEST_F(QueueRows, BehindABlockTheDepthGrowsAndTheGaugeFills)
{
    put("***stuck");
    put_messages(30);
    office.run_for(1min);

    EXPECT_EQ(frmMain.cuetotal.caption(), "30");
    EXPECT_EQ(frmMain.traffic.value(), 100);
}

TEST_F(QueueRows, BehindABlockSendingAndTheExitGoOn)
{
    put("***stuck");

    alice.person.send_to("Bob", "Hello");
    office.run_for(1s);
    EXPECT_TRUE(bob.popup(0).window.visible());

    alice.person.leave();
    EXPECT_EQ(alice.status(), 0);
    office.run_for(1s);
    EXPECT_EQ(bob.frmMain().statustext.caption(), "ALICE MEYER has signed off");
}

TEST_F(QueueRows, WhatIsNoMessageIsDroppedWithoutATrace)
{
    frmMain.busy = "";
    auto const log = alice.log();
    alice.journal.switch_on();

    for (std::string const row :
         {"", " ", "abc", "one]", "---[HOST\\USER]=Name", "**", "*", "--", "\r\n"}) {
        put(row);
        office.settle();
        EXPECT_THAT(frmMain.cue, IsEmpty()) << row;
    }

    EXPECT_EQ(frmMain.busy, "");
    EXPECT_EQ(alice.log(), log);
    EXPECT_THAT(alice.journal.lines(), IsEmpty());
    EXPECT_FALSE(frmMain.Timer3.enabled());
}

TEST_F(QueueRows, ADashDatagramWithABracketInItsNameIsAMessage)
{
    frmMain.busy = "";

    put("---[HOST\\USER]=Na]me");
    office.settle();

    EXPECT_EQ(frmMain.busy, "ok");
    EXPECT_FALSE(alice.popup(0).window.visible());
}

TEST_F(QueueRows, AMessageForSomebodyElseStillTrimsTheLog)
{
    frmMain.busy = "";
    alice.journal.switch_on();

    put(message(bob_id, carl_id, "Bob> Hello"));
    office.settle();

    EXPECT_EQ(frmMain.busy, "ok");
    EXPECT_THAT(alice.journal.lines(), ElementsAre("write logs/logtemp.txt"));
}

TEST_F(QueueRows, APresenceRowDoesNotCountAsAMessage)
{
    frmMain.busy = "";
    alice.journal.switch_on();

    put(answer(bob_id, "BOB"));
    put(sign_off(bob_id, "BOB"));
    office.settle();

    EXPECT_EQ(frmMain.busy, "");
    EXPECT_THAT(alice.journal.lines(), IsEmpty());
}

TEST_F(QueueRows, TheSameDatagramTwiceIsHandledTwice)
{
    put(message(bob_id, alice_id, "Bob> Hello"));
    put(message(bob_id, alice_id, "Bob> Hello"));
    office.settle();

    EXPECT_THAT(handled(), ElementsAre("Hello", "Hello"));
    EXPECT_TRUE(alice.popup(1).window.visible());
}

TEST_F(QueueRows, TheLargestDatagramIsTakenWhole)
{
    auto const head = std::string(bob_id) + std::string(alice_id) + "Bob> ";
    std::string const text(sim::Segment::largest_datagram - head.size(), 'x');

    put(head + text);
    office.settle();

    EXPECT_THAT(handled(), ElementsAre(text));
    EXPECT_EQ(alice.popup(0).message.text(), "Bob> " + text);
}

TEST_F(QueueRows, AMirrorThatCannotBeWrittenDoesNotHoldItUp)
{
    alice.files.unwritable = {"logs/logtemp.txt"};
    put_messages(2);
    office.settle();

    EXPECT_THAT(handled(), SizeIs(2));
    EXPECT_EQ(frmMain.busy, "ok");
    EXPECT_TRUE(alice.running());
}

} // namespace
