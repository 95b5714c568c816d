// What a load and a save do for auto-respond.

#include "tests/unit/core/settings_fixture.h"
#include "tests/unit/counter.h"

#include <gmock/gmock.h>

#include <array>
#include <vector>

namespace {

using unit::Counter;

class AutoRespond : public unit::SettingsTest {
protected:
    [[nodiscard]] bool auto_respond_is_offered() const
    {
        auto const& toggle = forms.menuform.closepopups[2];
        bool const shown = frmMain.away.visible;
        EXPECT_EQ(frmMain.autorespond.visible, shown);
        EXPECT_EQ(toggle.visible, shown);
        EXPECT_EQ(toggle.enabled, shown);
        return shown;
    }

    [[nodiscard]] std::array<bool, 5> checked_answers() const
    {
        return {answers[0].checked, answers[1].checked, answers[2].checked, answers[3].checked,
                answers[4].checked};
    }

    static constexpr std::array only_off{false, false, false, false, true};
};

TEST_F(AutoRespond, AResponseIsACaptionOfTheAnswersMenu)
{
    load(line("AUTORESPONSEMSG", "Lunch") + line("AUTORESPONSEMSG1", "Holiday") +
         line("AUTORESPONSEMSG2", "Talk"));

    EXPECT_EQ(answers[0].caption, "Lunch");
    EXPECT_EQ(answers[1].caption, "Holiday");
    EXPECT_EQ(answers[2].caption, "Talk");
    EXPECT_TRUE(answers[0].visible);
    EXPECT_TRUE(answers[1].visible);
    EXPECT_TRUE(answers[2].visible);
}

TEST_F(AutoRespond, AnEmptyResponseHidesItsEntryUntilItHasATextAgain)
{
    load(line("AUTORESPONSEMSG", "") + line("AUTORESPONSEMSG1", "") + line("AUTORESPONSEMSG2", ""));
    EXPECT_FALSE(answers[0].visible);
    EXPECT_FALSE(answers[1].visible);
    EXPECT_FALSE(answers[2].visible);
    EXPECT_EQ(settings.autorespond.text(), "");

    load(line("AUTORESPONSEMSG1", "Holiday"));
    EXPECT_FALSE(answers[0].visible);
    EXPECT_TRUE(answers[1].visible);
    EXPECT_FALSE(answers[2].visible);
}

TEST_F(AutoRespond, AForwardingResponseNamesItsTarget)
{
    load(line("AUTORESPONSEMSG3", "Forward to: Anna Berg"));

    EXPECT_EQ(settings.ar[3].text(), "Forward to: Anna Berg");
    EXPECT_EQ(settings.ar3temp.caption(), "Anna Berg");
    EXPECT_EQ(answers[3].caption, "Forward to: Anna Berg");
    EXPECT_TRUE(answers[3].visible);
}

TEST_F(AutoRespond, ATextThatMerelyBeginsLikeAForwardIsKeptAndCutTheSameWay)
{
    load(line("AUTORESPONSEMSG3", "Forwarded to whom?"));
    EXPECT_EQ(settings.ar[3].text(), "Forwarded to whom?");
    EXPECT_EQ(settings.ar3temp.caption(), " whom?");
    EXPECT_TRUE(answers[3].visible);

    load(line("AUTORESPONSEMSG3", "Forw"));
    EXPECT_EQ(settings.ar[3].text(), "Forw");
    EXPECT_EQ(settings.ar3temp.caption(), "");
    EXPECT_EQ(answers[3].caption, "Forw");
}

TEST_F(AutoRespond, AForwardWithoutATargetIsKept)
{
    load(line("AUTORESPONSEMSG3", "Forward to: "));

    EXPECT_EQ(settings.ar[3].text(), "Forward to: ");
    EXPECT_EQ(settings.ar3temp.caption(), "");
    EXPECT_TRUE(answers[3].visible);
}

TEST_F(AutoRespond, AnyOtherTextIsNoForwardingResponse)
{
    for (auto const* text : {"Ask Anna", "forward to: Anna", "For", " Forward to: Anna", ""}) {
        load(line("AUTORESPONSEMSG3", "Forward to: Anna"));
        load(line("AUTORESPONSEMSG3", text));
        EXPECT_EQ(settings.ar[3].text(), "") << text;
        EXPECT_EQ(settings.ar3temp.caption(), "") << text;
        EXPECT_FALSE(answers[3].visible) << text;
    }
}

TEST_F(AutoRespond, AutoRespondIsOfferedOnlyWhenItIsAllowed)
{
    load(line("AUTORESPONSEALLOW", "1"));
    EXPECT_TRUE(auto_respond_is_offered());

    load(line("AUTORESPONSEALLOW", "0"));
    EXPECT_FALSE(auto_respond_is_offered());
}

TEST_F(AutoRespond, EveryLoadLeavesAutoRespondOff)
{
    for (auto const* allowed : {"1", "0"}) {
        answers.check_only(2);
        frmMain.away.set(1);

        load(line("AUTORESPONSEALLOW", allowed));

        EXPECT_FALSE(frmMain.away.on());
        EXPECT_EQ(checked_answers(), only_off);
    }
}

TEST_F(AutoRespond, TheAwayHandlerSeesItOff)
{
    frmMain.away.set(1);
    std::vector<bool> seen;
    frmMain.away.clicked.attach([&] { seen.push_back(frmMain.away.on()); });

    load(line("AUTORESPONSEALLOW", "1"));

    EXPECT_THAT(seen, testing::Not(testing::IsEmpty()));
    EXPECT_THAT(seen, testing::Each(false));
}

TEST_F(AutoRespond, TheAwayHandlerRunsEvenWhenAutoRespondWasOff)
{
    Counter const handled(frmMain.away.clicked);

    load(line("AUTORESPONSEALLOW", "0"));

    EXPECT_EQ(handled.count(), 1);
}

TEST_F(AutoRespond, ALoadWithoutThatKeyLeavesAutoRespondOn)
{
    answers.check_only(2);
    frmMain.away.set(1);

    load(line("MY NAME", "BOB"));

    EXPECT_TRUE(frmMain.away.on());
    EXPECT_TRUE(answers[2].checked);
}

TEST_F(AutoRespond, ASaveOffersAutoRespondAndLeavesTheCheckMarksAlone)
{
    answers.check_only(2);
    frmMain.away.set(1);
    settings.autoresmaster.set(1);

    store.save();

    EXPECT_TRUE(auto_respond_is_offered());
    EXPECT_TRUE(answers[2].checked);
    EXPECT_FALSE(answers[4].checked);
    EXPECT_TRUE(frmMain.away.on());

    settings.autoresmaster.set(0);
    store.save();
    EXPECT_FALSE(auto_respond_is_offered());
    EXPECT_TRUE(frmMain.away.on());
}

} // namespace
