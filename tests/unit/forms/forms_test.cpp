#include "forms/box_open.h"
#include "forms/forms.h"
#include "tests/unit/counter.h"
#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using forms::BoxOpen;
using forms::Forms;
using unit::Counter;

class ABox : public testing::Test {
protected:
    Forms forms{unit::western};
    forms::FrmMain& frmMain = forms.frmMain;
};

TEST_F(ABox, IsOpenAsLongAsItIsShown)
{
    {
        BoxOpen const open(frmMain);
        EXPECT_TRUE(frmMain.boxopen.on());
    }
    EXPECT_FALSE(frmMain.boxopen.on());
}

TEST_F(ABox, WakesTheQueueWhenRowsHaveArrivedBehindIt)
{
    {
        BoxOpen const open(frmMain);
        frmMain.cue.emplace_back("a row");
        EXPECT_FALSE(frmMain.Timer3.enabled());
    }
    EXPECT_TRUE(frmMain.Timer3.enabled());
}

TEST_F(ABox, LeavesAnEmptyQueueAsleep)
{
    {
        BoxOpen const open(frmMain);
    }
    EXPECT_FALSE(frmMain.Timer3.enabled());
}

TEST_F(ABox, EndsWhenAFailureLeavesIt)
{
    frmMain.cue.emplace_back("a row");

    text::attempt([this] {
        BoxOpen const open(frmMain);
        throw text::Failure("Overflow", 6, "box");
    });

    EXPECT_FALSE(frmMain.boxopen.on());
    EXPECT_TRUE(frmMain.Timer3.enabled());
}

TEST_F(ABox, InsideAnotherOneClearsTheFlagOfBoth)
{
    BoxOpen const outer(frmMain);
    {
        BoxOpen const inner(frmMain);
    }
    EXPECT_FALSE(frmMain.boxopen.on());
}

TEST(Forms, ThePortsOnShowStandSwappedUntilTheFirstRefresh)
{
    Forms const forms(unit::western);

    EXPECT_EQ(forms.settings.portlisten.caption(), "4112");
    EXPECT_EQ(forms.settings.portsend.caption(), "4111");
    EXPECT_EQ(forms.frmMain.udplistenport, 4111);
    EXPECT_EQ(forms.frmMain.udpsendremote, 4111);
    EXPECT_EQ(forms.frmMain.udpsendport, 4112);
    EXPECT_EQ(forms.frmMain.udplistenremote, 4112);
}

TEST(Forms, EveryTimerStartsDisabled)
{
    Forms const forms(unit::western);

    EXPECT_FALSE(forms.frmMain.Timer1.enabled());
    EXPECT_FALSE(forms.frmMain.Timer2.enabled());
    EXPECT_FALSE(forms.frmMain.Timer3.enabled());
    EXPECT_EQ(forms.frmMain.Timer1.interval_ms, 5000);
    EXPECT_EQ(forms.frmMain.Timer2.interval_ms, 60000);
    EXPECT_EQ(forms.frmMain.Timer3.interval_ms, 120);
}

TEST(Forms, TheDirectoryAndTheRecipientsSortThemselves)
{
    Forms forms(unit::western);
    for (auto* list : {&forms.frmMain.userlist, &forms.frmMain.allusers}) {
        list->add("B");
        list->add("a");
        EXPECT_THAT(list->rows(), testing::ElementsAre("a", "B"));
    }
    EXPECT_TRUE(forms.frmMain.allusers.multi_selection);
}

TEST(Forms, TheTableOfWindowsKeepsItsOrder)
{
    Forms forms(unit::western);
    forms.frmMain.wins.add("1");
    forms.frmMain.wins.add("0");

    EXPECT_THAT(forms.frmMain.wins.rows(), testing::ElementsAre("1", "0"));
}

TEST(Forms, ThereAreTenPopupsAndTheRecallWindow)
{
    Forms forms(unit::western);
    int visited = 0;
    forms.for_each_popup([&visited](forms::Popup&) { ++visited; });

    EXPECT_EQ(visited, 11);
}

TEST(Forms, AutoRespondIsOffAndOutOfSight)
{
    Forms const forms(unit::western);

    EXPECT_FALSE(forms.frmMain.away.on());
    EXPECT_FALSE(forms.frmMain.away.visible);
    EXPECT_FALSE(forms.frmMain.autorespond.visible);
    EXPECT_FALSE(forms.menuform.closepopups[2].visible);
    EXPECT_TRUE(forms.menuform.autores[4].checked);
    EXPECT_FALSE(forms.menuform.autores[3].visible);
}

} // namespace
