#include "tests/desk/buttons_flows.h"

namespace {

using namespace desk;
using namespace flows;

/// The colours that a load gives.
class ButtonColours : public Buttons {
protected:
    void expect_answers(std::size_t number, controls::Colour colour, bool enabled)
    {
        for_each_answer(number, [&](controls::Button const& answer) {
            EXPECT_EQ(answer.background, colour) << number;
            EXPECT_EQ(answer.text_colour, black) << number;
            EXPECT_EQ(answer.enabled, enabled) << number;
        });
    }
    void expect_button(std::size_t number, controls::Colour colour, bool enabled)
    {
        EXPECT_EQ(button(number).background, colour) << number;
        EXPECT_EQ(button(number).enabled, enabled) << number;
    }
    void load(std::string_view file)
    {
        alice.files.put("buttons.txt", file);
        alice.enter([this] { alice.settings().loadbuttons.run(); });
    }
};

TEST_F(ButtonColours, TellButtonsThatSendAtOnceFromThoseThatWait)
{
    open();

    expect_button(1, yellow, true);
    expect_row_colour(1, yellow);
    expect_button(3, green, true);
    expect_row_colour(3, green);
    expect_answers(14, yellow, true);
    expect_row_colour(14, yellow);
    expect_answers(13, green, true);
    expect_row_colour(13, green);
    EXPECT_EQ(button(3).text_colour, black);
}

TEST_F(ButtonColours, AreGreyOnlyOnTheLiveButtonOfARowWithoutACaption)
{
    open_with(buttons_file({R"("","",0)", R"("","waits",0)", R"("","leaves",1)"}));

    for (std::size_t const number : {1U, 2U, 3U, 12U}) {
        expect_button(number, grey, false);
    }
    expect_row_colour(1, yellow);
    expect_row_colour(2, yellow);
    expect_row_colour(3, green);

    load(buttons_file(24, R"("","leaves",1)"));

    expect_answers(24, grey, false);
    expect_answers(13, grey, false);
    expect_row_colour(24, green);
    expect_row_colour(13, yellow);
}

TEST_F(ButtonColours, GoWithTheFlagWhateverItsNumber)
{
    open_with(buttons_file({R"("a","m",2)", R"("b","m",-1)", R"("c","m",x)"}));

    expect_button(1, green, true);
    expect_button(2, green, true);
    expect_button(3, yellow, true);
}

TEST_F(ButtonColours, AreRedForAnEmergencyOfAnySpellingAnywhereInTheCaption)
{
    open();
    for (auto const* words : {"EMERGENCY", "Fire eMeRgEnCy!", "emergencyexit", "A non-Emergency"}) {
        load(buttons_file(2, "\"" + std::string(words) + "\",\"m\",0"));

        expect_button(2, red, true);
        EXPECT_EQ(button(2).text_colour, text_yellow) << words;
        expect_row_colour(2, red);
        load(buttons_file({}));
    }
}

TEST_F(ButtonColours, AreRedForAnEmergencyThatLeavesAtOnce)
{
    open_with(buttons_file(12, R"("Emergency","Out!",1)"));

    expect_button(12, red, true);
    expect_row_colour(12, red);
    EXPECT_EQ(at_once(12).value(), 1);
}

TEST_F(ButtonColours, AreNotRedForAWordOfTheMessageOrHalfTheWord)
{
    open_with(buttons_file({R"("Help","Emergency!",0)", R"("emergenc y","m",0)"}));

    expect_button(1, yellow, true);
    expect_row_colour(1, yellow);
    expect_button(2, yellow, true);
}

TEST_F(ButtonColours, AreNeverRedOnAPopup)
{
    open_with(buttons_file(14, R"("Emergency","m",1)"));

    expect_answers(14, green, true);
    expect_row_colour(14, green);
}

TEST_F(ButtonColours, AreBlackOnYellowAgainWhenTheWordHasGone)
{
    open_with(buttons_file(2, R"("Emergency","m",0)"));

    load(buttons_file(2, R"("Lunch","m",0)"));

    expect_button(2, yellow, true);
    EXPECT_EQ(button(2).text_colour, black);
    expect_row_colour(2, yellow);
}

/// What changes while Alice types in the settings window, and what waits for Save.
class EditedButtons : public DefaultButtons {};

TEST_F(EditedButtons, TurnRedInTheirRowWhileTheWordIsTyped)
{
    in_settings([this] {
        fill_caption(2, "emergenc");
        expect_row_colour(2, yellow);
        fill_caption(2, "emergency");
        expect_row_colour(2, red);
        fill_caption(2, "Emergency exit");
        expect_row_colour(2, red);
        fill_caption(2, "See me");
        expect_row_colour(2, yellow);
        expect_row_colour(1, yellow);
        cancel();
    });
}

TEST_F(EditedButtons, TurnGreenAgainWhenTheWordGoesFromARowThatSendsAtOnce)
{
    in_settings([this] {
        fill_caption(3, "EMERGENCY");
        expect_row_colour(3, red);
        fill_caption(3, "Spouse");
        expect_row_colour(3, green);
        cancel();
    });
}

TEST_F(EditedButtons, FollowTheTickOfTheirRow)
{
    in_settings([this] {
        tick(1);
        expect_row_colour(1, green);
        tick(1);
        expect_row_colour(1, yellow);
        cancel();
    });
}

TEST_F(EditedButtons, StayRedWhateverTheTick)
{
    in_settings([this] {
        fill_caption(1, "Emergency");
        tick(1);
        expect_row_colour(1, red);
        tick(1);
        expect_row_colour(1, red);
        cancel();
    });
}

TEST_F(EditedButtons, AreColouredByTheCaptionAlone)
{
    in_settings([this] {
        fill_text(1, "Emergency!");
        expect_row_colour(1, yellow);
        cancel();
    });
}

TEST_F(EditedButtons, LeaveAGreyedTickItsColour)
{
    alice.files.put("buttons.txt", buttons_file(2, R"("Emergency","m",2)"));
    in_settings([this] { cancel(); });
    expect_row_colour(2, red);

    in_settings([this] {
        fill_caption(2, "Lunch");
        expect_row_colour(2, red);
        cancel();
    });
}

TEST_F(EditedButtons, TurnAResponseRowRedTooUntilTheNextLoad)
{
    in_settings([this] {
        fill_caption(14, "Emergency");
        fill_caption(13, "My emergency");
        expect_row_colour(14, red);
        expect_row_colour(13, red);
        save();
    });

    expect_row_colour(14, yellow);
    expect_row_colour(13, green);
    for_each_answer(13, [](controls::Button const& answer) {
        EXPECT_EQ(answer.caption, "My emergency");
        EXPECT_EQ(answer.background, green);
    });
}

TEST_F(EditedButtons, StayRedInASendRowBehindTheSave)
{
    in_settings([this] {
        fill_caption(2, "Emergency");
        save();
    });

    expect_row_colour(2, red);
    EXPECT_EQ(button(2).background, red);
    EXPECT_EQ(button(2).text_colour, text_yellow);
}

TEST_F(EditedButtons, AreLiveOnlyBehindTheSave)
{
    in_settings([this] {
        fill_caption(1, "Emergency");
        fill_caption(13, "");
        tick(14);
        EXPECT_EQ(button(1).caption, "Call on 1");
        EXPECT_EQ(button(1).background, yellow);
        for_each_answer(13, [](controls::Button const& answer) {
            EXPECT_EQ(answer.caption, "OK");
            EXPECT_TRUE(answer.enabled);
        });
        for_each_answer(
            14, [](controls::Button const& answer) { EXPECT_EQ(answer.background, yellow); });
        save();
    });

    EXPECT_EQ(button(1).caption, "Emergency");
    EXPECT_EQ(button(1).background, red);
    for_each_answer(13, [](controls::Button const& answer) {
        EXPECT_EQ(answer.background, grey);
        EXPECT_FALSE(answer.enabled);
    });
    for_each_answer(14,
                    [](controls::Button const& answer) { EXPECT_EQ(answer.background, green); });
}

TEST_F(EditedButtons, AreThrownAwayByCancel)
{
    auto const before = file();
    in_settings([this] {
        fill_caption(2, "Emergency");
        fill_text(2, "Out!");
        tick(2);
        fill_caption(14, "Never");
        cancel();
    });

    EXPECT_EQ(caption(2).text(), "Call on 2");
    EXPECT_EQ(text(2).text(), "You have a call on line 2");
    EXPECT_EQ(at_once(2).value(), 0);
    expect_row_colour(2, yellow);
    EXPECT_EQ(caption(14).text(), "Take message");
    EXPECT_EQ(file(), before);
}

} // namespace
