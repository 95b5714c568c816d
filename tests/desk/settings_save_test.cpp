// Save and Cancel, step by step.

#include "tests/desk/settings_desk.h"

namespace {

using namespace desk;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

auto const announcement = flows::announcement(flows::alice_id, "ALICE MEYER");

class SettingsSave : public SettingsDesk {};

TEST_F(SettingsSave, WithoutAChangeWritesAllFilesAndReloadsNothing)
{
    watch_order();

    save();

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("write logs/logtemp.txt", "write settings.txt", "write buttons.txt",
                            "read buttons.txt", "hide"));
    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_FALSE(settings.window.visible());
}

TEST_F(SettingsSave, OfAChangeReloadsAndAnnouncesBetweenTheFiles)
{
    frmMain.Label5.changed.attach([this] { alice.journal.note("banner"); });
    settings.autorespond.set_text("gone");
    tick(settings.hidetip);
    watch_order();

    save();

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("write logs/logtemp.txt", "write settings.txt", "read settings.txt",
                            "read users.txt", "send " + announcement, "banner", "write buttons.txt",
                            "read buttons.txt", "hide"));
}

TEST_F(SettingsSave, AddsItsRowToTheLogAndToItsMirror)
{
    save();

    auto const row = "11-15-26:03:18p: Settings changed and saved.";
    EXPECT_EQ(alice.log().back(), row);
    EXPECT_THAT(alice.files.content("logs/logtemp.txt"), EndsWith(std::string(row) + "\r\n"));
}

TEST_F(SettingsSave, OfAChangeEmptiesTheUsersWhoComeBackAsTheyAnswer)
{
    ASSERT_THAT(frmMain.allusers.rows(), ElementsAre("Alice Meyer", "Bob", "Carl Dunn"));
    tick(settings.hidetip);

    save();

    EXPECT_THAT(frmMain.allusers.rows(), IsEmpty());
    office.settle();
    EXPECT_THAT(frmMain.allusers.rows(), ElementsAre("Alice Meyer", "Bob", "Carl Dunn"));
}

TEST_F(SettingsSave, OfABoxTickedAndUntickedReloadsThoughNothingDiffers)
{
    tick(settings.hidetip);
    tick(settings.hidetip);

    save();

    EXPECT_THAT(sent_by(alice), ElementsAre(announcement));
}

TEST_F(SettingsSave, OfAForwardTargetAloneReloads)
{
    settings.fwdchange.set(1);

    save();

    EXPECT_THAT(sent_by(alice), ElementsAre(announcement));
    EXPECT_FALSE(settings.fwdchange.on());
    EXPECT_FALSE(settings.acchanged.on());
}

TEST_F(SettingsSave, OfQuickButtonsAloneWritesAndLoadsThemAndReloadsNothing)
{
    fill(settings.qsend[3], "Tea");
    fill(settings.qsendtext[3], "Tea is ready");

    save();

    EXPECT_EQ(frmMain.qb[3].caption, "Tea");
    EXPECT_THAT(alice.files.content("buttons.txt"),
                testing::HasSubstr("\"Tea\",\"Tea is ready\",1\r\n"));
    EXPECT_THAT(sent_by(alice), IsEmpty());
}

TEST_F(SettingsSave, LeavesNoMarkBehind)
{
    tick(settings.hidetip);

    save();

    EXPECT_FALSE(settings.acchanged.on());
}

TEST_F(SettingsSave, PutsTheTextInForceIntoTheBanner)
{
    fill(settings.autorespond, "Back at noon");

    save();

    EXPECT_EQ(frmMain.Label5.caption(), "Auto Respond On: Back at noon");
}

TEST_F(SettingsSave, OfAChangePutsTheFirstResponseInForceBeforeTheBanner)
{
    fill(settings.autorespond, "Back at noon");
    fill(settings.ar[0], "Gone");

    save();

    EXPECT_EQ(settings.autorespond.text(), "Gone");
    EXPECT_EQ(frmMain.Label5.caption(), "Auto Respond On: Gone");
}

TEST_F(SettingsSave, ACommaCutsAResponseInTheWindowAtOnceAndInTheFileAtTheNext)
{
    fill(settings.ar[1], "Back soon, call me");

    save_and_come_up();

    EXPECT_EQ(settings.ar[1].text(), "Back soon");
    EXPECT_EQ(in_file("AUTORESPONSEMSG1"), "Back soon, call me");
    save();
    EXPECT_EQ(in_file("AUTORESPONSEMSG1"), "Back soon");
}

TEST_F(SettingsSave, OffersAutoRespondOnTheMainWindowAndInTheTraysMenu)
{
    auto const& entry = alice.forms().menuform.closepopups[2];
    tick(settings.autoresmaster);
    EXPECT_FALSE(frmMain.away.visible); // Not before the save.

    save_and_come_up();
    EXPECT_TRUE(frmMain.away.visible);
    EXPECT_TRUE(entry.visible && entry.enabled);

    tick(settings.autoresmaster);
    save();
    EXPECT_FALSE(frmMain.away.visible);
    EXPECT_FALSE(entry.visible || entry.enabled);
}

TEST_F(SettingsSave, RestartsTheCountOfTheUserCheckWhenThatIsOn)
{
    frmMain.usercount = "77";
    save_and_come_up();
    EXPECT_EQ(frmMain.usercount, "77");

    tick(settings.autocheckusers);
    save();
    EXPECT_EQ(frmMain.usercount, "0");
    EXPECT_TRUE(frmMain.autocheckusers.on());
}

TEST_F(SettingsSave, ThatCannotWriteEndsTheProgramWithItsReport)
{
    alice.files.unwritable.insert("settings.txt");

    save();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "Permission denied");
}

TEST_F(SettingsSave, ThatCannotWriteTheButtonsEndsTheProgramBehindTheSettings)
{
    tick(settings.hidetip);
    alice.files.unwritable.insert("buttons.txt");

    save();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(in_file("HIDEENTERSENDTIP"), "1");
}

class SettingsCancel : public SettingsDesk {};

TEST_F(SettingsCancel, ReadsOptionsUsersAndButtonsBackAndHides)
{
    watch_order();

    cancel();

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("read settings.txt", "read users.txt", "read buttons.txt", "hide"));
    EXPECT_FALSE(settings.window.visible());
    EXPECT_THAT(sent_by(alice), IsEmpty());
}

TEST_F(SettingsCancel, GivesBackWhatStoodThere)
{
    auto const caption = settings.qsend[3].text();
    tick(settings.myown);
    tick(settings.soundon);
    fill(settings.ar[1], "Gone");
    fill(settings.qsend[3], "Tea");
    settings.msgfontsize.set_caption("16");

    cancel();

    EXPECT_EQ(settings.myown.value(), 0);
    EXPECT_EQ(settings.soundon.value(), 1);
    EXPECT_EQ(frmMain.Check2.value(), 1);
    EXPECT_EQ(settings.ar[1].text(), "I'm out of the office");
    EXPECT_EQ(settings.qsend[3].text(), caption);
    EXPECT_EQ(settings.msgfontsize.caption(), "10");
}

TEST_F(SettingsCancel, ForgetsAForwardTargetThatWasChosen)
{
    settings.fwdchange.set(1);

    cancel();
    come_up();
    save();

    EXPECT_FALSE(settings.fwdchange.on());
    EXPECT_THAT(sent_by(alice), IsEmpty());
}

TEST_F(SettingsCancel, LeavesTheUsersOnShow)
{
    tick(settings.hidetip);

    cancel();

    EXPECT_THAT(frmMain.allusers.rows(), ElementsAre("Alice Meyer", "Bob", "Carl Dunn"));
}

TEST_F(SettingsCancel, DoesNotUndoWhatWasDoneAtOnce)
{
    alice.boxes.will_enter("Alice");
    press(settings.Command1);
    alice.boxes.will_enter("5111");
    press(settings.Command2);
    alice.boxes.will_enter("6000");
    press(settings.btnChatPort1);

    cancel();

    EXPECT_EQ(frmMain.friendlyname, "ALICE");
    EXPECT_EQ(frmMain.udplistenport, 5111);
    EXPECT_EQ(settings.chatport1.caption(), "6000");
}

TEST_F(SettingsCancel, OfAFileWithARuinedFlagEndsTheProgramWithItsReport)
{
    alice.files.put("settings.txt", sim::settings_file("Alice Meyer", {{"SHOWOWN", "no"}}));

    cancel();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "Type mismatch");
}

} // namespace
