#include "demo/colleagues.h"
#include "demo/ending.h"
#include "demo/screenplay.h"
#include "demo/seen.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace {

using demo::Scene;
using demo::Stage;

/// The office as it is when this scene begins.
void play_up_to(Stage& stage, std::size_t scene)
{
    demo::open_office(stage);
    for (std::size_t number = 0; number < scene; ++number) {
        demo::screenplay()[number].play(stage);
    }
}

struct EachScene : testing::TestWithParam<std::size_t> {
    EachScene() { play_up_to(stage, GetParam()); }

    void play() { scene.play(stage); }

    Stage stage{demo::Pace::at_once, QString()};
    Scene const& scene = demo::screenplay()[GetParam()];
};

TEST(VirtualOffice, TheStoryGoesAsItIsTold)
{
    Stage stage(demo::Pace::at_once, QString());
    EXPECT_NO_THROW(play_up_to(stage, demo::screenplay().size()));
}

struct AcquaintedOffice {
    AcquaintedOffice() { play_up_to(stage, 1); }

    Stage stage{demo::Pace::at_once, QString()};
};

/// Somebody sits at Alice's desk, and the story is over.
struct BehindTheStory : testing::Test, AcquaintedOffice {
    void live_on(std::chrono::seconds time)
    {
        auto const end = stage.office.scheduler.now() + time;
        while (stage.office.scheduler.now() < end) {
            stage.pass(std::chrono::milliseconds(200));
            colleagues.look();
        }
    }

    sim::Peer& alice = stage.peer(demo::cast::alice);
    demo::Colleagues colleagues{stage};
};

TEST_F(BehindTheStory, AColleagueAnswersWhoeverIsInFront)
{
    alice.person.send_to("Kim Park", "Are you busy?");

    live_on(std::chrono::seconds(10));

    EXPECT_TRUE(demo::seen::reads(alice, "Kim Park", "KIM PARK> Not at all, come over."));
}

TEST_F(BehindTheStory, AnAnswerIsReadToTheEndAndNotAnsweredOnAndOn)
{
    alice.person.send_to("Kim Park", "Thanks");

    live_on(std::chrono::seconds(30));

    EXPECT_EQ(alice.history().count(), 2);
}

TEST_F(BehindTheStory, ColleaguesWriteComeAndGoByThemselves)
{
    live_on(std::chrono::minutes(5));

    EXPECT_TRUE(demo::seen::hears(alice, "Lucas Martin"));
    EXPECT_TRUE(demo::seen::hears(alice, "Bob Hartmann"));
    EXPECT_TRUE(stage.peer(demo::cast::henrik).running());
}

TEST_P(EachScene, IsNotToldWhereNothingReachesAnybody)
{
    bool const is_about_the_past = scene.title == std::string_view("What was said");
    stage.office.segment.faults.loss = 1;

    if (is_about_the_past) {
        EXPECT_NO_THROW(play());
    } else {
        EXPECT_THROW(play(), demo::NotAsTold);
    }
}

TEST_P(EachScene, IsNotToldWhereAlicesProgramHasEnded)
{
    if (auto* const alice = stage.find(demo::cast::alice)) {
        alice->crash();
        stage.pass(std::chrono::milliseconds(1)); // Its windows go.
        EXPECT_THROW(play(), demo::NotAsTold);
    } else {
        EXPECT_NO_THROW(play()); // In the first scene it has not begun yet.
    }
}

INSTANTIATE_TEST_SUITE_P(Screenplay, EachScene,
                         testing::Range(std::size_t{0}, demo::screenplay().size()),
                         [](auto const& each) {
                             std::string name = demo::screenplay()[each.param].title;
                             std::erase(name, ' ');
                             return name;
                         });

} // namespace
