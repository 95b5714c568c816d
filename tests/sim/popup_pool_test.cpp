#include "stories.h"

namespace {

using namespace flows;
using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

class PopupPool : public AlicesPopups {
protected:
    [[nodiscard]] std::string shown_in(std::size_t slot)
    {
        auto const& popup = alice.popup(slot);
        return popup.window.visible() ? popup.message.text() : "nothing";
    }
};

TEST_F(PopupPool, HasTenFreeSlotsBehindAStart)
{
    EXPECT_THAT(popups.rows(), ElementsAre("-", "-", "-", "-", "-", "-", "-", "-", "-", "-"));
    EXPECT_THAT(wins.rows(), ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", "8", "9"));
    EXPECT_EQ(frmMain.pucount.caption(), "10");
    EXPECT_FALSE(menuform.closepopups[0].enabled);
    EXPECT_FALSE(frmMain.dissmissall.enabled);
}

TEST_F(PopupPool, AMessageTakesTheLowestFreeSlot)
{
    hear("Hello");

    EXPECT_EQ(shown_in(0), "Bob> Hello");
    EXPECT_THAT(wins.rows(), ElementsAre("-", "1", "2", "3", "4", "5", "6", "7", "8", "9"));
    EXPECT_EQ(popups.row(9), "261115171802popup0");
    EXPECT_THAT(popups.rows(), SizeIs(10));
    EXPECT_EQ(frmMain.pucount.caption(), "9");
    EXPECT_TRUE(menuform.closepopups[0].enabled);
    EXPECT_TRUE(frmMain.dissmissall.enabled);
}

TEST_F(PopupPool, BusyRowsStandOldestFirstBehindTheFreeOnes)
{
    hear_times(3);

    EXPECT_THAT(popups.rows(), ElementsAre("-", "-", "-", "-", "-", "-", "-", "261115171802popup0",
                                           "261115171803popup1", "261115171804popup2"));
}

TEST_F(PopupPool, ASlotInTheMiddleIsUsedAgainBeforeANewOne)
{
    hear_times(3);
    close(1);

    hear("again");

    EXPECT_EQ(shown_in(1), "Bob> again");
    EXPECT_EQ(shown_in(3), "nothing");
}

TEST_F(PopupPool, TheLowestFreeSlotIsTakenWhateverTheOrderOfTheCloses)
{
    hear_times(5);
    close(3);
    close(1);
    close(4);

    hear("first");
    hear("second");
    hear("third");

    EXPECT_EQ(shown_in(1), "Bob> first");
    EXPECT_EQ(shown_in(3), "Bob> second");
    EXPECT_EQ(shown_in(4), "Bob> third");
}

TEST_F(PopupPool, TheEleventhMessageTakesOverTheOldest)
{
    hear_times(10);
    EXPECT_EQ(frmMain.pucount.caption(), "0");

    hear("eleventh");

    EXPECT_EQ(shown_in(0), "Bob> eleventh");
    EXPECT_EQ(frmMain.pucount.caption(), "0");
    EXPECT_THAT(popups.rows(), SizeIs(10));
    EXPECT_THAT(wins.rows(), Each("-"));
    EXPECT_EQ(popups.row(9), "261115171812popup0");
}

TEST_F(PopupPool, TheTwelfthMessageTakesOverTheNextOldest)
{
    hear_times(11);

    hear("twelfth");

    EXPECT_EQ(shown_in(1), "Bob> twelfth");
}

TEST_F(PopupPool, AFreedSlotIsUsedBeforeTheOldestIsTakenOver)
{
    hear_times(10);
    close(4);

    hear("into four");
    hear("over nought");

    EXPECT_EQ(shown_in(4), "Bob> into four");
    EXPECT_EQ(shown_in(0), "Bob> over nought");
}

TEST_F(PopupPool, ATakenOverWindowKeepsItsNoteAndItsTick)
{
    hear("to all", "[ALL]");
    alice.popup(0).Check1.set(1);
    hear_times(9);

    hear("to one");

    EXPECT_EQ(shown_in(0), "Bob> to one");
    EXPECT_EQ(alice.popup(0).Label3.caption(), "(Sent to ALL)");
    EXPECT_EQ(alice.popup(0).Check1.value(), 1);
}

TEST_F(PopupPool, AReplyBeingWrittenIsLostWithATakenOverWindow)
{
    hear_times(10);
    alice.popup(0).temp.set_text("half a reply");

    hear("eleventh");

    EXPECT_EQ(alice.popup(0).temp.text(), "");
}

TEST_F(PopupPool, ATakenOverMessageSurvivesInTheHistory)
{
    hear_times(11);

    EXPECT_EQ(alice.history().row(1).at(5), "0");
    EXPECT_EQ(alice.history().count(), 11);
}

TEST_F(PopupPool, ATakenOverWindowIsShownAgainWhereItWas)
{
    hear_times(10);
    auto& window = alice.popup(0).window;
    window.place(111, 222);
    auto const shows = window.shows();

    hear("eleventh");

    EXPECT_EQ(window.shows(), shows + 1);
    EXPECT_FLOAT_EQ(window.left, 111);
    EXPECT_FLOAT_EQ(window.top, 222);
}

TEST_F(PopupPool, NoCodePlacesAPopup)
{
    hear_times(3);

    for (auto const& popup : alice.forms().popup) {
        EXPECT_FALSE(popup.window.placed);
        EXPECT_FLOAT_EQ(popup.window.width, 5235);
        EXPECT_FLOAT_EQ(popup.window.height, 6855);
    }
}

TEST_F(PopupPool, AClosedPopupGivesItsSlotBack)
{
    hear("Hello");

    close(0);

    EXPECT_THAT(popups.rows(), ElementsAre("-", "-", "-", "-", "-", "-", "-", "-", "-", "-"));
    EXPECT_THAT(wins.rows(), ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", "8", "9"));
    EXPECT_EQ(frmMain.pucount.caption(), "10");
    EXPECT_FALSE(menuform.closepopups[0].enabled);
}

TEST_F(PopupPool, SlotNoughtTakesNoOtherRowWithIt)
{
    // A row that is gone reads as slot 0; its removal is refused, and that is ignored.
    hear_times(3);

    close(0);

    EXPECT_THAT(popups.rows(), SizeIs(10));
    EXPECT_EQ(popups.row(8), "261115171803popup1");
    EXPECT_EQ(popups.row(9), "261115171804popup2");
    EXPECT_EQ(frmMain.pucount.caption(), "8");
}

TEST_F(PopupPool, EveryChangeOfTheCountTurnsTheTrayIcon)
{
    Lines icons;
    menuform.Command1.attach([&] { icons.push_back("waiting"); });
    menuform.Command2.attach([&] { icons.push_back("normal"); });

    hear("Hello");
    EXPECT_EQ(icons.back(), "waiting");

    icons.clear();
    close(0);
    EXPECT_THAT(icons, ElementsAre("waiting", "waiting", "waiting", "waiting", "waiting", "waiting",
                                   "waiting", "waiting", "waiting", "waiting", "normal"));
}

TEST_F(PopupPool, TheLastCloseShowsTheNormalIconEvenOverTheAwayOne)
{
    hear("Hello");
    frmMain.away.set(1);
    Lines icons;
    menuform.Command2.attach([&] { icons.push_back("normal"); });
    menuform.Command3.attach([&] { icons.push_back("away"); });

    close(0);

    EXPECT_EQ(icons.back(), "normal");
}

TEST_F(PopupPool, WhenTheTablesDisagreeTheMessageOpensAllTheSame)
{
    wins.clear();
    for (int slot = 0; slot < 10; ++slot) {
        wins.add("-");
    }

    hear("Hello");

    // The slot is the number of the free row.
    EXPECT_EQ(shown_in(9), "Bob> Hello");
}

TEST(FreePopupSlot, IgnoresASlotThatIsFreeAndASlotThatIsNone)
{
    auto const letters = text::CharacterSet::western();
    forms::Forms forms(letters);
    sim::Scheduler const scheduler;
    sim::Clock const clock(scheduler);
    popups::Pool pool(forms, clock);
    pool.start();

    pool.freepopupslot("3");
    pool.freepopupslot("12");
    pool.freepopupslot("");

    EXPECT_EQ(forms.frmMain.pucount.caption(), "10");
    pool.open({.sender = "BOB", .recipient = "[ALL]", .text = "Hello"});
    EXPECT_TRUE(forms.popup.at(0).window.visible());
}

TEST(FreePopupSlot, TakesEveryRowOfItsSlot)
{
    auto const letters = text::CharacterSet::western();
    forms::Forms forms(letters);
    sim::Scheduler const scheduler;
    sim::Clock const clock(scheduler);
    popups::Pool pool(forms, clock);
    auto& rows = forms.frmMain.popups;
    rows.add("261115151500popup3");
    rows.add("261115151501popup5");
    rows.add("261115151502popup3");

    pool.freepopupslot("3");

    EXPECT_THAT(rows.rows(), ElementsAre("-", "261115151501popup5"));
}

} // namespace
