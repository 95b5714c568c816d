#include "flows.h"

#include <stdexcept>

namespace {

using namespace flows;
using namespace std::chrono_literals;
using platform::Answer;
using sim::Impossible;
using sim::Scheduler;
using testing::ElementsAre;
using testing::IsEmpty;

/// What the other stories rely on: the office itself.

TEST(SchedulerOfTheOffice, RunsEventsByTimeAndThenByPlan)
{
    Scheduler scheduler;
    Lines seen;
    scheduler.after(2ms, [&] { seen.push_back("late"); });
    scheduler.after(1ms, [&] { seen.push_back("first"); });
    scheduler.after(1ms, [&] { seen.push_back("second"); });

    scheduler.run_until(1ms);
    EXPECT_THAT(seen, ElementsAre("first", "second"));
    EXPECT_EQ(scheduler.now(), 1ms);

    scheduler.run_until(10ms);
    EXPECT_EQ(seen.back(), "late");
    EXPECT_EQ(scheduler.now(), 10ms);
}

TEST(SchedulerOfTheOffice, MayBeRunByAnEvent)
{
    Scheduler scheduler;
    Lines seen;
    scheduler.after(1ms, [&] {
        seen.push_back("in");
        scheduler.run_until(5ms);
        seen.push_back("out");
    });
    scheduler.after(3ms, [&] { seen.push_back("meanwhile"); });

    scheduler.run_until(2ms);

    EXPECT_THAT(seen, ElementsAre("in", "meanwhile", "out"));
    EXPECT_EQ(scheduler.now(), 5ms);
}

TEST(SchedulerOfTheOffice, PlansNothingInThePast)
{
    Scheduler scheduler;
    scheduler.run_until(5ms);
    sim::Duration when{0};
    scheduler.at(1ms, [&] { when = scheduler.now(); });

    scheduler.run_until(6ms);

    EXPECT_EQ(when, 5ms);
}

class OfficeItself : public TwoPeople {};

TEST_F(OfficeItself, ABoxThatNobodyForetoldFailsTheTest)
{
    EXPECT_THROW(alice.person.click(alice.frmMain().spotx), sim::UnexpectedBox);
}

TEST_F(OfficeItself, NobodyClicksBehindABox)
{
    alice.boxes.will_answer(Answer::cancel).meanwhile([&] {
        EXPECT_THROW(alice.person.click(alice.frmMain().sendbtn), Impossible);
    });

    alice.person.click(alice.frmMain().spotx);
}

TEST_F(OfficeItself, NobodyUsesWhatIsHiddenOrDisabledOrNotThere)
{
    EXPECT_THROW(alice.person.pick("Nobody"), Impossible);
    EXPECT_THROW(alice.person.click(alice.popup(0), alice.popup(0).Command1), Impossible);
    alice.person.tick_all();
    EXPECT_THROW(alice.person.pick("Bob"), Impossible);
    alice.person.click(alice.frmMain().spotmin);
    EXPECT_THROW(alice.person.type("Hello"), Impossible);
    alice.crash();
    EXPECT_THROW(alice.person.type("Hello"), Impossible);
}

TEST_F(OfficeItself, AnErrorBehindABoxEndsTheProgramThroughTheBox)
{
    bool came_back = false;
    alice.frmMain().getusers.attach([] { throw text::Failure("broken", 1, "test"); });
    alice.boxes.will_answer(Answer::cancel).after(1min).meanwhile([&] {
        office.scheduler.after(10s, [&] { alice.enter([&] { alice.frmMain().getusers.run(); }); });
    });

    alice.enter([&] {
        alice.frmMain().spotx.click();
        came_back = true;
    });

    EXPECT_FALSE(came_back);
    EXPECT_EQ(alice.report(), "broken");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(OfficeItself, AProgramThatEndedGivesItsPortsBackAndHearsNothing)
{
    alice.crash();
    office.segment.inject(message(bob_id, alice_id, "Bob> Hello"));
    office.run_for(1s);

    EXPECT_EQ(alice.listening.state(), platform::UdpSocket::state_closed);
    EXPECT_THAT(alice.frmMain().cue, IsEmpty());
    alice.start();
    EXPECT_TRUE(alice.running());
}

TEST_F(OfficeItself, AProgramStartsOnceAtATime)
{
    EXPECT_THROW(alice.start(), std::logic_error);
}

TEST_F(OfficeItself, TheDiskOutlivesTheProgram)
{
    alice.boxes.will_enter("Alicia");
    alice.enter([this] { alice.frmMain().Command1.run(); });

    alice.restart();

    EXPECT_EQ(alice.frmMain().friendlyname, "ALICIA");
}

TEST_F(OfficeItself, TheClockFollowsTheVirtualTime)
{
    alice.clock.set({.year = 2026, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 58});
    office.run_for(3s);

    EXPECT_EQ(
        alice.clock.now(),
        (text::LocalTime{.year = 2027, .month = 1, .day = 1, .hour = 0, .minute = 0, .second = 1}));
}

/// A person whose answers nobody knows beforehand.
struct SomebodyAtADesk : platform::Boxes {
    Answer show(platform::MessageBox const& /*box*/) override { return Answer::cancel; }
    std::string ask(platform::InputBox const& box) override
    {
        asked.push_back(box.title);
        return "Dana Reed";
    }
    std::string choose_file(platform::FileBox const& /*box*/) override { return {}; }

    Lines asked;
};

TEST_F(OfficeItself, ABoxThatNobodyForetoldIsLeftToTheDesk)
{
    SomebodyAtADesk desk;
    auto& dana = office.host("ROOM44", "dana");
    dana.boxes.hand_to(desk);

    dana.start();

    EXPECT_THAT(desk.asked, ElementsAre("Vexlo Instant Messaging Setup"));
    EXPECT_EQ(dana.frmMain().friendlyname, "DANA REED");
}

TEST_F(OfficeItself, AForetoldAnswerGoesBeforeTheDesk)
{
    SomebodyAtADesk desk;
    auto& dana = office.host("ROOM44", "dana");
    dana.boxes.hand_to(desk);
    dana.boxes.will_enter("Dana");

    dana.start();

    EXPECT_THAT(desk.asked, IsEmpty());
    EXPECT_EQ(dana.frmMain().friendlyname, "DANA");
}

TEST_F(OfficeItself, SettlingGivesUpWhenItsTimeIsOver)
{
    office.segment.inject("***stuck");
    auto const begin = office.scheduler.now();

    EXPECT_FALSE(office.settle(30s));

    EXPECT_EQ(office.scheduler.now(), begin + 30s);
}

TEST_F(OfficeItself, ADatagramThatIsTooLongIsRefused)
{
    EXPECT_THROW(alice.sending.send(std::string(65'508, 'x'), "255.255.255.255", 4111),
                 text::Failure);
    alice.sending.send(std::string(65'507, 'x'), "255.255.255.255", 4111);
    EXPECT_EQ(office.segment.sent().size(), 1U);
}

} // namespace
