#include "stories.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using platform::Answer;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class Queue : public AlicesQueue {};

TEST_F(Queue, AnArrivalIsOnlyStored)
{
    put("***[ROOM55\\DORA]=DORA");

    EXPECT_THAT(frmMain.cue, ElementsAre("***[ROOM55\\DORA]=DORA"));
    EXPECT_TRUE(frmMain.Timer3.enabled());
    EXPECT_THAT(office.segment.texts_from("ROOM12"), IsEmpty());
    EXPECT_THAT(frmMain.userlist.rows(), Not(Contains("[ROOM55\\DORA]=DORA")));
}

TEST_F(Queue, AnEmptyDatagramIsARowToo)
{
    put("");

    EXPECT_THAT(frmMain.cue, ElementsAre(""));
    EXPECT_TRUE(frmMain.Timer3.enabled());
}

TEST_F(Queue, NewRowsGoToTheEnd)
{
    put("one");
    put("two");

    EXPECT_THAT(frmMain.cue, ElementsAre("one", "two"));
}

TEST_F(Queue, TheDepthIsOneLessThanTheRows)
{
    put("one");
    EXPECT_EQ(frmMain.cuetotal.caption(), "0");
    put("two");
    EXPECT_EQ(frmMain.cuetotal.caption(), "1");
}

TEST_F(Queue, TheGaugeIsFourTimesTheDepthAndFullAtTwentySix)
{
    put_messages(11);
    EXPECT_EQ(frmMain.traffic.value(), 40);
    put_messages(14);
    EXPECT_EQ(frmMain.traffic.value(), 96);
    put_messages(1);
    EXPECT_EQ(frmMain.traffic.value(), 100);
    put_messages(20);
    EXPECT_EQ(frmMain.traffic.value(), 100);
}

TEST_F(Queue, OneRowIsHandledATick)
{
    put_messages(3);

    office.run_for(tick);
    EXPECT_EQ(frmMain.cue.size(), 2U);
    office.run_for(tick);
    EXPECT_EQ(frmMain.cue.size(), 1U);
}

TEST_F(Queue, ABurstIsHandledInItsOrderAtItsPace)
{
    put_messages(30);
    Lines depths;
    frmMain.cuetotal.changed.attach([&] { depths.push_back(frmMain.cuetotal.caption()); });
    auto const begin = office.scheduler.now();

    office.settle();

    EXPECT_GE(office.scheduler.now() - begin, 29 * tick);
    EXPECT_LE(office.scheduler.now() - begin, 30 * tick);
    EXPECT_THAT(depths, SizeIs(29));
    EXPECT_EQ(depths.front(), "28");
    EXPECT_EQ(depths.back(), "0");
    auto const texts = handled();
    ASSERT_THAT(texts, SizeIs(30));
    for (int number = 1; number <= 30; ++number) {
        EXPECT_EQ(texts.at(static_cast<std::size_t>(number - 1)), std::to_string(number));
    }
    EXPECT_FALSE(frmMain.Timer3.enabled());
}

TEST_F(Queue, TheDepthStandsAtNoughtInTheEnd)
{
    put_messages(2);
    office.settle();

    EXPECT_EQ(frmMain.cuetotal.caption(), "0");
    EXPECT_EQ(frmMain.traffic.value(), 0);
}

TEST_F(Queue, TheRowInHandStillCounts)
{
    put_messages(1);
    frmMain.cuetotal.set_caption("77");

    office.run_for(tick);

    EXPECT_EQ(frmMain.cuetotal.caption(), "0");
    EXPECT_EQ(frmMain.curmessage, message(bob_id, alice_id, "Bob> 1"));
}

TEST_F(Queue, TheDepthIsNotWrittenBehindARemoval)
{
    put_messages(3);

    office.run_for(tick);

    EXPECT_EQ(frmMain.cue.size(), 2U);
    EXPECT_EQ(frmMain.cuetotal.caption(), "2");
}

TEST_F(Queue, RowsWaitWhileABoxIsOpen)
{
    put_messages(1);
    frmMain.boxopen.set(1);

    office.run_for(1min);

    EXPECT_EQ(frmMain.cue.size(), 1U);
    EXPECT_TRUE(frmMain.Timer3.enabled());
}

TEST_F(Queue, AnArrivalBehindABoxDoesNotStartTheTimer)
{
    frmMain.boxopen.set(1);

    put_messages(1);

    EXPECT_FALSE(frmMain.Timer3.enabled());
    EXPECT_EQ(frmMain.cuetotal.caption(), "0");
    frmMain.boxopen.set(0);
    office.run_for(1min);
    EXPECT_EQ(frmMain.cue.size(), 1U);
}

TEST_F(Queue, TheNextArrivalWakesWhatWaitedBehindABox)
{
    frmMain.boxopen.set(1);
    put_messages(1);
    frmMain.boxopen.set(0);

    put_messages(1);
    office.settle();

    EXPECT_THAT(handled(), SizeIs(2));
}

TEST_F(Queue, ManyRowsWaitBehindABoxForMinutesAndNoneIsLost)
{
    alice.boxes.will_answer(Answer::cancel).after(10min).meanwhile([&] { put_messages(50); });

    alice.person.click(frmMain.spotx);
    EXPECT_EQ(frmMain.cue.size(), 50U);
    office.settle();

    EXPECT_THAT(handled(), SizeIs(50));
}

TEST_F(Queue, ATickWithoutARowLeavesTheTimerOn)
{
    frmMain.Timer3.enable();

    office.run_for(10 * tick);

    EXPECT_TRUE(frmMain.Timer3.enabled());
}

TEST_F(Queue, AnewStartHasAnEmptyQueue)
{
    put("***stuck");
    alice.restart();

    EXPECT_TRUE(office.settle());
    EXPECT_THAT(alice.frmMain().cue, IsEmpty());
}

} // namespace
