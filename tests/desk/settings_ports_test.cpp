// The two chat ports, which nothing reads.

#include "tests/desk/settings_desk.h"

namespace {

using namespace desk;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ChatPort : public SettingsDesk {
protected:
    void enter_first(std::string_view answer)
    {
        alice.boxes.will_enter(answer);
        press(settings.btnChatPort1);
    }
    void enter_second(std::string_view answer)
    {
        alice.boxes.will_enter(answer);
        press(settings.btnChatPort2);
    }
    /// The box behind the prompt.
    void expect_refused(std::string_view why) const
    {
        auto const& boxes = alice.boxes.shown();
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes.back().text, "Ports cannot be the same.") << why;
        EXPECT_EQ(boxes.back().title, "Change your Ports") << why;
        EXPECT_EQ(boxes.back().buttons, platform::Buttons::ok) << why;
    }
};

TEST_F(ChatPort, IsAskedForAsAListeningPortWhicheverItIs)
{
    enter_first("");
    enter_second("");

    for (auto const& box : alice.boxes.shown()) {
        EXPECT_EQ(box.text, "Please enter the new Chat Listening Port #:\r\n");
        EXPECT_EQ(box.title, "Change your Ports");
    }
    EXPECT_EQ(alice.boxes.shown().at(0).default_text, "4114");
    EXPECT_EQ(alice.boxes.shown().at(1).default_text, "4113");
}

TEST_F(ChatPort, StaysAsItIsWithAnEmptyAnswer)
{
    enter_first("");

    EXPECT_EQ(settings.chatport1.caption(), "4114");
    EXPECT_EQ(alice.boxes.shown().size(), 1U);
}

TEST_F(ChatPort, IsAskedForWithTheListeningSocketClosed)
{
    alice.journal.switch_on();

    enter_first("6000");

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("close 4111", HasSubstr("box Please enter"), "bind 4111"));
    EXPECT_EQ(alice.listening.port(), 4111);
}

TEST_F(ChatPort, IsRefusedWithTheListeningSocketClosedOnceMore)
{
    alice.boxes.will_enter("4111");
    alice.boxes.will_answer(platform::Answer::ok);
    alice.journal.switch_on();

    press(settings.btnChatPort1);

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("close 4111", HasSubstr("box Please enter"), "bind 4111", "close 4111",
                            "box Ports cannot be the same.", "bind 4111"));
}

TEST_F(ChatPort, WhatArrivesBehindItsBoxIsLost)
{
    using namespace std::chrono_literals;
    alice.boxes.will_enter("").after(1s).meanwhile([this] {
        office.segment.inject_to("ROOM12",
                                 flows::message(flows::bob_id, flows::alice_id, "BOB> Lunch?"));
    });

    press(settings.btnChatPort1);
    office.settle();

    EXPECT_FALSE(alice.popup(0).window.visible());
    EXPECT_THAT(frmMain.cue, IsEmpty());
}

TEST_F(ChatPort, MayNotBeAnyOfTheOtherThree)
{
    for (auto const* const other : {"4111", "4112", "4113"}) {
        alice.boxes.will_enter(other);
        alice.boxes.will_answer(platform::Answer::ok);
        press(settings.btnChatPort1);
        expect_refused(other);
        EXPECT_EQ(settings.chatport1.caption(), "4114");
    }
    for (auto const* const other : {"4111", "4112", "4114"}) {
        alice.boxes.will_enter(other);
        alice.boxes.will_answer(platform::Answer::ok);
        press(settings.btnChatPort2);
        expect_refused(other);
        EXPECT_EQ(settings.chatport2.caption(), "4113");
    }
}

TEST_F(ChatPort, MayBeEnteredAsItIs)
{
    enter_first("4114");

    EXPECT_EQ(alice.boxes.shown().size(), 1U);
    EXPECT_EQ(settings.chatport1.caption(), "4114");
}

TEST_F(ChatPort, IsComparedAsTextAndKeptAsANumber)
{
    enter_first("04111");

    EXPECT_EQ(alice.boxes.shown().size(), 1U);
    EXPECT_EQ(settings.chatport1.caption(), "4111");
}

TEST_F(ChatPort, IsTheLeadingNumberOfAnyAnswer)
{
    enter_first("6000 or so");
    EXPECT_EQ(settings.chatport1.caption(), "6000");
    enter_first("none");
    EXPECT_EQ(settings.chatport1.caption(), "0");
    enter_second("99999999999");
    EXPECT_EQ(settings.chatport2.caption(), "99999999999");
    enter_second("-6000.5");
    EXPECT_EQ(settings.chatport2.caption(), "-6000.5");
}

TEST_F(ChatPort, MovesNoSocketAndMarksNothing)
{
    enter_first("6000");

    EXPECT_FALSE(settings.acchanged.on());
    EXPECT_EQ(alice.listening.port(), 4111);
    EXPECT_EQ(alice.sending.port(), 4112);
}

TEST_F(ChatPort, OutlivesSaveAndCancelAndEndsWithTheProgram)
{
    enter_first("6000");
    enter_second("7000");
    save_and_come_up();
    cancel();
    come_up();
    EXPECT_EQ(settings.chatport1.caption(), "6000");
    EXPECT_EQ(settings.chatport2.caption(), "7000");
    for (auto const& name : alice.files.names()) {
        EXPECT_THAT(alice.files.content(name), Not(HasSubstr("6000"))) << name;
    }

    come_back();

    EXPECT_EQ(alice.settings().chatport1.caption(), "4114");
    EXPECT_EQ(alice.settings().chatport2.caption(), "4113");
}

TEST_F(ChatPort, IsComparedWithThePortsOnShow)
{
    alice.boxes.will_enter("5111");
    press(settings.Command2);
    alice.boxes.will_enter("5111");
    alice.boxes.will_answer(platform::Answer::ok);

    press(settings.btnChatPort1);

    expect_refused("the listening port on show");
    enter_first("4111");
    EXPECT_EQ(settings.chatport1.caption(), "4111");
    EXPECT_EQ(alice.listening.port(), 5111);
}

TEST_F(ChatPort, WhoseBoxFindsTheListeningPortTakenEndsTheProgram)
{
    alice.boxes.will_enter("6000").meanwhile([this] { alice.host.taken.insert(4111); });

    press(settings.btnChatPort1);

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "Address in use");
}

} // namespace
