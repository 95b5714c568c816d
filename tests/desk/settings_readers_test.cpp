// Who reads the options: each is changed in the window, saved, and seen where it counts.

#include "tests/desk/settings_desk.h"

namespace {

using namespace desk;
using flows::Lines;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Option : public SettingsDesk {
protected:
    void tick_and_save(controls::CheckBox& box)
    {
        tick(box);
        save();
        office.settle();
        office.segment.forget();
    }
    void send_to_all()
    {
        alice.person.tick_all();
        alice.person.send("Tea is ready");
        office.settle();
    }
};

TEST_F(Option, OnesOwnMessageToAllPopsUpWhenItSaysSo)
{
    cancel();
    send_to_all();
    EXPECT_FALSE(alice.popup(0).window.visible());

    come_up();
    tick_and_save(settings.myown);
    send_to_all();
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(Option, OnesOwnMessageToAllNeedsNoSaveToPopUp)
{
    tick(settings.myown);
    settings.window.hide();

    send_to_all();

    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(Option, ClearingTheCacheComesWithTheReloadOfItsSaveAndOnceInARun)
{
    tick(settings.startclearusers);
    EXPECT_EQ(frmMain.userlist.count(), 3);
    alice.journal.switch_on();

    save();

    EXPECT_THAT(alice.journal.lines(),
                flows::HasInOrder(Lines{"read settings.txt", "write users.txt", "read users.txt"}));
    EXPECT_EQ(alice.files.content("users.txt"), "[ROOM12\\ALICE]=ALICE MEYER\r\n");
    alice.journal.clear();
    come_up();
    tick(settings.hidetip);
    save();
    EXPECT_THAT(alice.journal.lines(), Not(Contains("write users.txt")));
}

TEST_F(Option, TheOwnNameLeavesTheListWhenItIsNotToBeShown)
{
    ASSERT_THAT(frmMain.allusers.rows(), Contains("Alice Meyer"));

    tick_and_save(settings.showme);

    EXPECT_THAT(frmMain.allusers.rows(), ElementsAre("Bob", "Carl Dunn"));
}

TEST_F(Option, ReplyToAllReachesTheBoxOfEveryPopup)
{
    tick_and_save(settings.replytoall);

    alice.forms().for_each_popup([](forms::Popup const& popup) { EXPECT_TRUE(popup.Check1.on()); });
}

TEST_F(Option, KeepInFrontStacksThePopups)
{
    tick_and_save(settings.ontop);

    EXPECT_EQ(alice.popup(0).window.stacking, controls::Window::Stacking::on_top);
}

TEST_F(Option, StartWithTheSystemWritesAndRemovesTheSessionsEntry)
{
    EXPECT_THAT(alice.session_entries.entries, Not(IsEmpty()));

    tick_and_save(settings.autostartup);

    EXPECT_THAT(alice.session_entries.entries, IsEmpty());
}

TEST_F(Option, FontsReachTheMessagesAndTheUserList)
{
    settings.msgfontsize.set_caption("14");
    tick_and_save(settings.userlistfont);

    EXPECT_EQ(frmMain.messagetext.font_size, 14);
    EXPECT_EQ(frmMain.allusers.font_size, 14);
}

TEST_F(Option, EnterSendsOnceItIsSaved)
{
    tick_and_save(settings.entersend);

    EXPECT_TRUE(frmMain.entersend.on());
    EXPECT_EQ(frmMain.entlabel1.caption(), "Press Enter to Send");
    alice.person.pick("Bob");
    alice.person.type("Lunch?");
    alice.person.press_enter();
    EXPECT_EQ(sent_by(alice).size(), 1U);
}

TEST_F(Option, TheTipIsHiddenOnceItIsSaved)
{
    tick(settings.hidetip);
    EXPECT_TRUE(frmMain.entlabel1.visible);

    save();

    EXPECT_FALSE(frmMain.entlabel1.visible);
    EXPECT_FALSE(frmMain.entlabel2.visible);
}

TEST_F(Option, ResettingThePortsIsReadAtTheSend)
{
    tick(settings.resetports);
    settings.window.hide();
    alice.journal.switch_on();

    alice.person.send_to("Bob", "Lunch?");

    EXPECT_THAT(alice.journal.lines(),
                flows::HasInOrder(Lines{"close 4111", "close 4112", "bind 4111", "bind 4112"}));
}

TEST_F(Option, MinimizeOnStartupCountsAtTheNextStart)
{
    tick_and_save(settings.startminimized);
    EXPECT_TRUE(frmMain.window.visible());

    restart_alice();

    EXPECT_EQ(alice.frmMain().minimized, "yes");
}

TEST_F(Option, TheWatchdogIsReadByNobodyAndUntickedByEveryLoad)
{
    tick(settings.watchdog);
    EXPECT_TRUE(settings.acchanged.on());
    save();
    EXPECT_EQ(settings.watchdog.value(), 0); // The save of a change reloads.
    EXPECT_EQ(in_file("USEWATCHDOG"), "none");

    come_up();
    tick(settings.watchdog);
    cancel();
    EXPECT_EQ(settings.watchdog.value(), 0);

    come_up();
    tick(settings.watchdog);
    come_back();
    EXPECT_EQ(alice.settings().watchdog.value(), 0);
}

} // namespace
