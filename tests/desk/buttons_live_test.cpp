#include "tests/desk/buttons_flows.h"

namespace {

using namespace desk;
using namespace flows;
using controls::Key;
using testing::ElementsAre;
using testing::IsEmpty;

/// What a press does, from the table to the moment of sending.
class LiveButtons : public DefaultButtons {
protected:
    void press(std::size_t number) { alice.person.click(button(number)); }
    void press_key(int number) { alice.person.press_key(Key::f1 + number - 1); }
    void hear(std::string_view body, std::string_view to)
    {
        office.segment.inject_to("ROOM12", message(bob_id, to, body));
        office.settle();
    }
    [[nodiscard]] std::string const& draft() { return frmMain().messagetext.text(); }
    [[nodiscard]] Lines sent() { return sent_by(alice); }
};

TEST_F(LiveButtons, LeaveAtOnceWithTheFlagOfTheirRow)
{
    alice.person.pick("Bob");

    press(4);

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "ALICE MEYER> Are you busy?")));
    EXPECT_EQ(draft(), "");
}

TEST_F(LiveButtons, LetAWordBeWrittenOverBeforeItLeaves)
{
    alice.person.pick("Bob");

    press(9);

    EXPECT_EQ(draft(), "? is here to see you.");
    EXPECT_THAT(sent(), IsEmpty());

    alice.person.click(frmMain().sendbtn);

    EXPECT_THAT(sent(),
                ElementsAre(message(alice_id, bob_id, "ALICE MEYER> ? is here to see you.")));
}

TEST_F(LiveButtons, WithACaptionAndNoTextEmptyTheDraft)
{
    in_settings([this] {
        fill_text(5, "");
        save();
    });
    alice.person.type("something else");

    EXPECT_TRUE(button(5).enabled);
    press(5);

    EXPECT_EQ(draft(), "");
}

TEST_F(LiveButtons, WithoutACaptionCannotBeClickedButFollowTheirKey)
{
    in_settings([this] {
        fill_text(11, "behind the scenes");
        save();
    });
    alice.person.pick("Bob");

    EXPECT_THROW(press(11), sim::Impossible);
    press_key(11);

    EXPECT_EQ(draft(), "behind the scenes");
}

TEST_F(LiveButtons, WithoutAnythingEmptyTheDraftByTheirKey)
{
    alice.person.pick("Bob");
    alice.person.type("something else");

    press_key(11);

    EXPECT_EQ(draft(), "");
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(LiveButtons, WithoutACaptionSendByTheirKeyWhereTheFlagIsSet)
{
    in_settings([this] {
        fill_text(12, "gone at once");
        tick(12);
        save();
    });
    alice.person.pick("Bob");

    press_key(12);

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id, "ALICE MEYER> gone at once")));
}

TEST_F(LiveButtons, RunTheSendByTheirKeyThoughThereIsNothingToSend)
{
    in_settings([this] {
        tick(12);
        save();
    });
    alice.settings().resetports.set(1);
    int resets = 0;
    frmMain().Command6.attach([&] { ++resets; });
    alice.person.pick("Bob");

    press_key(12);

    EXPECT_EQ(resets, 1);
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(LiveButtons, SendWhatTheSettingsWindowHoldsBeforeItIsSaved)
{
    alice.person.pick("Bob");
    text(4).set_text("Are you there?");
    at_once(1).set(1);

    press(4);
    press(1);

    EXPECT_THAT(sent(),
                ElementsAre(message(alice_id, bob_id, "ALICE MEYER> Are you there?"),
                            message(alice_id, bob_id, "ALICE MEYER> You have a call on line 1")));
}

TEST_F(LiveButtons, WithAGreyedFlagDoNotLeaveAtOnce)
{
    alice.files.put("buttons.txt", buttons_file({R"("See me","Please come",2)"}));
    in_settings([this] { cancel(); });
    alice.person.pick("Bob");

    press(1);

    EXPECT_EQ(draft(), "Please come");
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(LiveButtons, OfAnEmergencySelectEverybodyAndWaitOrGoByTheirFlag)
{
    in_settings([this] {
        fill_caption(2, "My eMERGENCY");
        fill_text(2, "Leave the house!");
        save();
    });

    press(2);

    EXPECT_EQ(frmMain().Checkallusers.value(), 1);
    EXPECT_EQ(draft(), "Leave the house!");
    EXPECT_THAT(sent(), IsEmpty());

    frmMain().Checkallusers.set(0);
    at_once(2).set(1);
    press(2);

    EXPECT_THAT(sent(),
                ElementsAre(message(alice_id, "[ALL]", "ALICE MEYER> (To All) Leave the house!")));
}

TEST_F(LiveButtons, BecomeAnEmergencyOnlyWithTheirColour)
{
    caption(2).set_text("EMERGENCY");

    press(2);

    EXPECT_EQ(frmMain().Checkallusers.value(), 0);
}

TEST_F(LiveButtons, OfAnEmergencyInAPopupAnswerTheSenderAlone)
{
    in_settings([this] {
        fill_caption(14, "Emergency");
        tick(14);
        save();
    });
    hear("BOB> lunch?", alice_id);

    alice.person.click(alice.popup(0), alice.popup(0).quick(14));

    EXPECT_THAT(sent(), ElementsAre(message(alice_id, bob_id,
                                            "BOB> lunch?\r\nALICE MEYER> Please take a message")));
    EXPECT_EQ(frmMain().Checkallusers.value(), 0);
}

TEST_F(LiveButtons, AreDisabledInAForwardButTheirKeysSendInItsFirstSendersName)
{
    hear("BOB> lunch?", alice_id);
    alice.person.click(alice.popup(0), alice.popup(0).fwd);
    for (std::size_t number = 1; number <= 12; ++number) {
        EXPECT_FALSE(button(number).enabled) << number;
    }
    alice.person.pick("Carl Dunn");

    press_key(3);

    EXPECT_THAT(sent(), ElementsAre(message(bob_id, carl_id, "BOB> Your spouse is on the phone")));
    office.settle();
    EXPECT_EQ(carl.popup(0).messagefrom.caption(), "Bob");
    for (std::size_t number = 1; number <= 12; ++number) {
        EXPECT_EQ(button(number).enabled, number <= 10) << number;
    }
}

TEST_F(LiveButtons, ShowTheTextOfTheMomentUnderThePointer)
{
    auto const tip = [this](std::size_t number) {
        alice.enter([&] { button(number).pointed.run(); });
        return button(number).tool_tip;
    };
    EXPECT_EQ(tip(5), "Please come see me");

    in_settings([&] {
        fill_text(5, "Come \"now\"");
        EXPECT_EQ(tip(5), "Come \"now\"");
        cancel();
    });
    EXPECT_EQ(tip(5), "Please come see me");

    in_settings([&] {
        fill_text(13, "Fine");
        for_each_answer(13, [&](controls::Button& answer) {
            alice.enter([&] { answer.pointed.run(); });
            EXPECT_EQ(answer.tool_tip, "Fine");
        });
        save();
    });
}

/// The tick "Reply to All" of the message windows, which the buttons' load sets to the option.
class ReplyToAllOption : public Buttons {
protected:
    explicit ReplyToAllOption(std::string const& value = "1")
        : Buttons({.settings = {{"REPLYTOALL", value}}})
    {
        open();
    }
    [[nodiscard]] int ticked()
    {
        int count = 0;
        alice.forms().for_each_popup(
            [&](forms::Popup const& popup) { count += popup.Check1.value(); });
        return count;
    }
};

TEST_F(ReplyToAllOption, TicksNoWindowAtTheStartWhichLoadsTheButtonsFirst)
{
    EXPECT_EQ(alice.settings().replytoall.value(), 1);
    EXPECT_EQ(ticked(), 0);
}

TEST_F(ReplyToAllOption, TicksAllElevenWindowsAtTheFirstCancel)
{
    in_settings([this] { cancel(); });

    EXPECT_EQ(ticked(), 11);
}

TEST_F(ReplyToAllOption, TicksAllElevenWindowsAtTheFirstSave)
{
    in_settings([this] {
        EXPECT_EQ(ticked(), 0);
        save();
    });

    EXPECT_EQ(ticked(), 11);
}

class NoReplyToAll : public ReplyToAllOption {
protected:
    NoReplyToAll() : ReplyToAllOption("0") {}
};

TEST_F(NoReplyToAll, TakesTheTickFromAnOpenWindowAtSaveAndCancel)
{
    office.segment.inject_to("ROOM12", message(bob_id, "[ALL]", "BOB> (To All) cake!"));
    office.settle();
    auto& popup = alice.popup(0);
    for (bool const saves : {true, false}) {
        popup.Check1.set(1);

        in_settings([&] { saves ? save() : cancel(); });

        EXPECT_TRUE(popup.window.visible());
        EXPECT_EQ(popup.Check1.value(), 0);
    }
}

TEST_F(NoReplyToAll, GivesWayToATickInTheSettingsWithTheSave)
{
    in_settings([this] {
        alice.person.tick(alice.settings().window, alice.settings().replytoall);
        EXPECT_EQ(ticked(), 0);
        save();
    });

    EXPECT_EQ(ticked(), 11);
}

} // namespace
