#include "stories.h"

namespace {

using namespace flows;
using testing::Each;
using testing::ElementsAre;

class CloseAll : public AlicesPopups {};

TEST_F(CloseAll, TheCloseAllButtonStaysLiveOnceItHasBeen)
{
    hear("Hello");
    close(0);

    EXPECT_TRUE(frmMain.dissmissall.enabled);
    alice.person.click(frmMain.dissmissall);
    EXPECT_EQ(frmMain.pucount.caption(), "10");
}

TEST_F(CloseAll, CloseAllClosesEveryPopup)
{
    hear("one", "[ALL]");
    hear_times(4);
    alice.popup(2).response = "Bob";

    alice.person.click(frmMain.dissmissall);

    for (auto const& popup : alice.forms().popup) {
        EXPECT_FALSE(popup.window.visible());
        EXPECT_EQ(popup.message.text(), "");
        EXPECT_EQ(popup.Label3.caption(), "");
        EXPECT_EQ(popup.response, "");
    }
    EXPECT_THAT(popups.rows(), Each("-"));
    EXPECT_THAT(wins.rows(), ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", "8", "9"));
    EXPECT_EQ(frmMain.pucount.caption(), "10");
    EXPECT_FALSE(menuform.closepopups[0].enabled);
}

TEST_F(CloseAll, CloseAllHidesPopupOneFirstAndTheRecallWindowLast)
{
    hear_times(10);
    popuplast.window.show();
    Lines hidden;
    for (std::size_t slot = 0; slot < 10; ++slot) {
        alice.popup(slot).window.hidden.attach(
            [&, slot] { hidden.push_back(std::to_string(slot)); });
    }
    popuplast.window.hidden.attach([&] { hidden.push_back("last"); });

    alice.person.click(frmMain.dissmissall);

    EXPECT_THAT(hidden, ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "last"));
}

TEST_F(CloseAll, CloseAllLeavesTheReplyAndTheTickToTheNextMessage)
{
    hear("Hello");
    alice.popup(0).temp.set_text("half a reply");
    alice.popup(0).Check1.set(1);

    alice.person.click(frmMain.dissmissall);

    EXPECT_EQ(alice.popup(0).temp.text(), "half a reply");
    EXPECT_EQ(alice.popup(0).Check1.value(), 1);
    hear("again");
    EXPECT_EQ(alice.popup(0).temp.text(), "");
}

TEST_F(CloseAll, RecallShowsTheRecallWindowAgainBehindACloseAll)
{
    popuplast.message.set_text("an old message");
    popuplast.window.show();
    frmMain.dissmissall.enabled = true;

    alice.person.click(frmMain.dissmissall);
    EXPECT_FALSE(popuplast.window.visible());
    EXPECT_EQ(popuplast.message.text(), "an old message");

    alice.person.click(frmMain.recall);
    EXPECT_TRUE(popuplast.window.visible());
}

TEST_F(CloseAll, RecallWithoutAMessageDoesNothing)
{
    hear("Hello");

    alice.person.click(frmMain.recall);

    EXPECT_FALSE(popuplast.window.visible());
}

} // namespace
