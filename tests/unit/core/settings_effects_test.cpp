// What follows from the options, at a load and at a save.

#include "tests/unit/core/settings_fixture.h"
#include "tests/unit/counter.h"

#include <gmock/gmock.h>

#include <vector>

namespace {

using unit::Counter;

class Options : public unit::SettingsTest {};

// Fonts

TEST_F(Options, TheMessageFontGoesWhereverMessagesStand)
{
    load(line("MESSAGEFONTSIZE", "14"));

    EXPECT_EQ(settings.msgfontsize.caption(), "14");
    EXPECT_EQ(frmMain.messagetext.font_size, 14);
    EXPECT_EQ(frmMain.allusers.font_size, 14);
    EXPECT_EQ(frmMain.List1.font_size, 14);
    EXPECT_EQ(forms.historyfrm.message.font_size, 14);
    forms.for_each_popup([](forms::Popup const& popup) { EXPECT_EQ(popup.message.font_size, 14); });
}

TEST_F(Options, ASizeThatIsNoneChangesNoFont)
{
    for (auto const* size : {"", "big", "0", "-3"}) {
        load(line("MESSAGEFONTSIZE", size));
        EXPECT_EQ(settings.msgfontsize.caption(), size);
        EXPECT_EQ(frmMain.messagetext.font_size, 10) << size;
        EXPECT_EQ(frmMain.List1.font_size, 10) << size;
    }
}

TEST_F(Options, TheUserListFollowsTheMessagesOrIsSmall)
{
    load(line("MESSAGEFONTSIZE", "14") + line("USERLISTFONT", "1"));
    EXPECT_EQ(frmMain.allusers.font_size, 14);

    load(line("MESSAGEFONTSIZE", "14") + line("USERLISTFONT", "0"));
    EXPECT_EQ(frmMain.allusers.font_size, 7);
    EXPECT_EQ(frmMain.messagetext.font_size, 14);
    EXPECT_EQ(frmMain.List1.font_size, 14);
}

TEST_F(Options, TheFontKeysTakeEffectInTheOrderOfTheFile)
{
    load(line("USERLISTFONT", "0") + line("MESSAGEFONTSIZE", "14"));
    EXPECT_EQ(frmMain.allusers.font_size, 14);

    load(line("USERLISTFONT", "1") + line("MESSAGEFONTSIZE", "9"));
    EXPECT_EQ(frmMain.allusers.font_size, 9);
}

// The window's place

TEST_F(Options, TheWindowComesBackToItsPlace)
{
    load(line("WINPOSX", "1200.5") + line("WINPOSY", "300"));

    EXPECT_EQ(frmMain.window.left, 1200.5F);
    EXPECT_EQ(frmMain.window.top, 300);
}

TEST_F(Options, ANegativePlaceIsRaisedToTheEdge)
{
    load(line("WINPOSX", "-200") + line("WINPOSY", "-0.5"));

    EXPECT_EQ(frmMain.window.left, 0);
    EXPECT_EQ(frmMain.window.top, 0);
}

TEST_F(Options, APlaceThatIsNoNumberIsTheEdge)
{
    frmMain.window.place(50, 60);

    load(line("WINPOSX", "left") + line("WINPOSY", ""));

    EXPECT_EQ(frmMain.window.left, 0);
    EXPECT_EQ(frmMain.window.top, 0);
}

TEST_F(Options, APlaceBeyondAllScreensIsAFailure)
{
    EXPECT_THROW(load(line("WINPOSX", "1e39")), text::Failure);
}

TEST_F(Options, AReloadDoesNotMoveTheWindow)
{
    frmMain.window.place(50, 60);
    start_up_is_over();

    load(line("WINPOSX", "1200") + line("WINPOSY", "-300"));

    EXPECT_EQ(frmMain.window.left, 50);
    EXPECT_EQ(frmMain.window.top, 60);
}

TEST_F(Options, OnlyTheMarkOfTheSplashBarTellsThatStartUpIsOver)
{
    forms.loading.ProgressBar1.set(55);

    load(line("WINPOSX", "1200"));

    EXPECT_EQ(frmMain.window.left, 1200);
}

// Sound

TEST_F(Options, TheSoundSwitchFollowsItsOption)
{
    load(line("PLAYSOUND", "0"));
    EXPECT_EQ(frmMain.Check2.value(), 0);

    load(line("PLAYSOUND", "1"));
    EXPECT_EQ(frmMain.Check2.value(), 1);
}

TEST_F(Options, TheSoundSwitchFollowsAnOptionThatStoodThereAlready)
{
    frmMain.Check2.set(0);

    load(line("PLAYSOUND", "1"));

    EXPECT_EQ(frmMain.Check2.value(), 1);
}

TEST_F(Options, ASoundThatExistsIsKept)
{
    files.contents["/home/bob/bell.wav"] = "a bell";

    load(line("WAVEFILE", "/home/bob/bell.wav"));

    EXPECT_EQ(settings.wavefile, "/home/bob/bell.wav");
    EXPECT_EQ(frmMain.wavefile, "/home/bob/bell.wav");
}

TEST_F(Options, ASoundThatIsGoneFallsBackOnTheProgramsOwn)
{
    load(line("WAVEFILE", "/home/bob/bell.wav"));

    EXPECT_EQ(settings.wavefile, "app/vexlo.wav");
    EXPECT_EQ(frmMain.wavefile, "app/vexlo.wav");
}

TEST_F(Options, AFolderIsNoSound)
{
    files.make_folder("/home/bob/bell.wav");

    load(line("WAVEFILE", "/home/bob/bell.wav"));

    EXPECT_EQ(settings.wavefile, "app/vexlo.wav");
    EXPECT_EQ(frmMain.wavefile, "app/vexlo.wav");
}

TEST_F(Options, TheProgramsOwnSoundIsTakenEvenWhenItIsGoneToo)
{
    files.remove(sound);

    load(line("WAVEFILE", "/home/bob/bell.wav"));

    EXPECT_EQ(settings.wavefile, "app/vexlo.wav");
}

TEST_F(Options, AnEmptySoundIsTheProgramsOwn)
{
    files.contents[""] = "a file without a name";

    load(line("WAVEFILE", ""));

    EXPECT_EQ(frmMain.wavefile, "app/vexlo.wav");
}

TEST_F(Options, TheFileOfAFirstRunNamesItsSoundUnderAKeyThatNobodyReads)
{
    files.contents["elsewhere.wav"] = "a bell";

    load(line("WAVESOUND", "elsewhere.wav"));

    EXPECT_EQ(settings.wavefile, "app/vexlo.wav");
}

TEST_F(Options, ASaveTakesTheSoundAsItIsChosen)
{
    settings.wavefile = "/not/checked.wav";

    store.save();

    EXPECT_EQ(frmMain.wavefile, "/not/checked.wav");
    EXPECT_EQ(settings.wavefile, "/not/checked.wav");
}

// The enter key

TEST_F(Options, TheTipTellsThatEnterSends)
{
    load(line("ENTERSEND", "1"));

    EXPECT_TRUE(frmMain.entersend.on());
    EXPECT_EQ(frmMain.entlabel1.caption(), "Press Enter to Send");
    EXPECT_EQ(frmMain.entlabel2.caption(), "Ctrl+Enter for new line");
    EXPECT_TRUE(frmMain.entlabel1.visible);
    EXPECT_TRUE(frmMain.entlabel2.visible);
}

TEST_F(Options, TheTipTellsThatCtrlEnterSends)
{
    load(line("ENTERSEND", "1"));
    load(line("ENTERSEND", "0"));

    EXPECT_FALSE(frmMain.entersend.on());
    EXPECT_EQ(frmMain.entlabel1.caption(), "Press Ctrl+Enter to Send");
    EXPECT_EQ(frmMain.entlabel2.caption(), "");
}

TEST_F(Options, TheTipIsHiddenAndShownAgain)
{
    load(line("HIDEENTERSENDTIP", "1"));
    EXPECT_FALSE(frmMain.entlabel1.visible);
    EXPECT_FALSE(frmMain.entlabel2.visible);
    EXPECT_EQ(frmMain.entlabel1.caption(), "Press Ctrl+Enter to Send");

    load(line("HIDEENTERSENDTIP", "0"));
    EXPECT_TRUE(frmMain.entlabel1.visible);
    EXPECT_TRUE(frmMain.entlabel2.visible);
}

TEST_F(Options, ASaveTakesTheEnterKeyAndLeavesItsTipToTheNextLoad)
{
    load(line("ENTERSEND", "0"));
    settings.entersend.set(1);

    store.save();

    EXPECT_TRUE(frmMain.entersend.on());
    EXPECT_EQ(frmMain.entlabel1.caption(), "Press Ctrl+Enter to Send");
}

// The user check

TEST_F(Options, TheUserCheckFollowsItsOptionAndALoadDoesNotRestartItsCount)
{
    frmMain.usercount = "17";

    load(line("AUTOCHECKUSERS", "1"));
    EXPECT_TRUE(frmMain.autocheckusers.on());

    load(line("AUTOCHECKUSERS", "0"));
    EXPECT_FALSE(frmMain.autocheckusers.on());
    EXPECT_EQ(frmMain.usercount, "17");
}

TEST_F(Options, ASaveRestartsTheCountOfTheUserCheck)
{
    settings.autocheckusers.set(1);
    frmMain.usercount = "17";

    store.save();

    EXPECT_TRUE(frmMain.autocheckusers.on());
    EXPECT_EQ(frmMain.usercount, "0");
}

TEST_F(Options, ASaveWithoutTheUserCheckLeavesItsCount)
{
    frmMain.autocheckusers.set(1);
    frmMain.usercount = "17";

    store.save();

    EXPECT_FALSE(frmMain.autocheckusers.on());
    EXPECT_EQ(frmMain.usercount, "17");
}

// Popups in front

TEST_F(Options, KeepInFrontStacksTheTenPopupsAndNotTheRecallWindow)
{
    std::vector<Counter> on;
    std::vector<Counter> off;
    for (auto& popup : forms.popup) {
        on.emplace_back(popup.ontop);
        off.emplace_back(popup.ontopoff);
    }
    Counter const last_on(forms.popuplast.ontop);
    Counter const last_off(forms.popuplast.ontopoff);

    load(line("KEEPINFRONT", "1"));
    for (std::size_t slot = 0; slot < on.size(); ++slot) {
        EXPECT_EQ(on[slot].count(), 1) << slot;
        EXPECT_EQ(off[slot].count(), 0) << slot;
    }

    load(line("KEEPINFRONT", "0"));
    for (std::size_t slot = 0; slot < on.size(); ++slot) {
        EXPECT_EQ(on[slot].count(), 1) << slot;
        EXPECT_EQ(off[slot].count(), 1) << slot;
    }
    EXPECT_EQ(last_on.count(), 0);
    EXPECT_EQ(last_off.count(), 0);
}

// Session start and the companion process

TEST_F(Options, TheSessionEntryFollowsEveryLoadAndEverySave)
{
    std::vector<bool> followed;
    frmMain.followsessionstart.attach([&] { followed.push_back(settings.autostartup.on()); });

    load(line("STARTWITHWINDOWS", "0"));
    settings.autostartup.set(1);
    store.save();

    EXPECT_THAT(followed, testing::ElementsAre(false, true));
}

TEST_F(Options, ALoadWithoutAFileRunsAllThatNeedsNoFile)
{
    Counter const session(frmMain.followsessionstart);
    Counter const stacking(forms.popup[9].ontopoff);
    settings.hidetip.set(1);
    settings.wavefile = "gone.wav";

    store.load();

    EXPECT_EQ(session.count(), 1);
    EXPECT_EQ(stacking.count(), 1);
    EXPECT_FALSE(frmMain.entlabel1.visible);
    EXPECT_EQ(frmMain.wavefile, "app/vexlo.wav");
}

TEST_F(Options, AFlagThatIsNoNumberStopsTheLoadBeforeAllThat)
{
    Counter const session(frmMain.followsessionstart);

    EXPECT_THROW(load(line("SHOWOWN", "")), text::Failure);

    EXPECT_EQ(session.count(), 0);
    EXPECT_EQ(frmMain.wavefile, "");
}

TEST_F(Options, EverySaveStopsTheCompanionAndNoLoadDoes)
{
    Counter const stopped(frmMain.stopwatchdog);

    load("");
    EXPECT_EQ(stopped.count(), 0);

    store.save();
    store.save();
    EXPECT_EQ(stopped.count(), 2);
}

TEST_F(Options, AFailedSaveAppliesNothing)
{
    Counter const stopped(frmMain.stopwatchdog);
    settings.entersend.set(1);
    settings.autoresmaster.set(1);
    files.read_only = true;

    EXPECT_THROW(store.save(), text::Failure);

    EXPECT_EQ(stopped.count(), 0);
    EXPECT_FALSE(frmMain.entersend.on());
    EXPECT_FALSE(frmMain.away.visible);
}

TEST_F(Options, ALoadGoesOnFromSoundAndTipToTheSessionAndThePopups)
{
    std::vector<std::string> steps;
    frmMain.followsessionstart.attach([&] {
        EXPECT_EQ(frmMain.wavefile, "app/vexlo.wav");
        EXPECT_EQ(frmMain.entlabel1.caption(), "Press Enter to Send");
        steps.emplace_back("session");
    });
    forms.popup[0].ontopoff.attach([&] { steps.emplace_back("popups"); });

    load(line("ENTERSEND", "1"));

    EXPECT_THAT(steps, testing::ElementsAre("session", "popups"));
}

TEST_F(Options, ASaveGoesOnFromTheFileToTheSessionAndTheCompanion)
{
    settings.autoresmaster.set(1);
    std::vector<std::string> steps;
    frmMain.followsessionstart.attach([&] {
        EXPECT_TRUE(files.contents.contains(path));
        EXPECT_TRUE(frmMain.away.visible);
        steps.emplace_back("session");
    });
    frmMain.stopwatchdog.attach([&] { steps.emplace_back("companion"); });

    store.save();

    EXPECT_THAT(steps, testing::ElementsAre("session", "companion"));
}

} // namespace
