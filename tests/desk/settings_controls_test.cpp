// The settings window as it comes up: what stands in it, what its panel tells, and what marks a
// change.

#include "tests/desk/settings_desk.h"

namespace {

using namespace desk;
using forms::Settings;
using testing::EndsWith;
using testing::IsEmpty;

// What stands in it

class SettingsWindow : public SettingsDesk {};

TEST_F(SettingsWindow, IsThereForTheWholeRun)
{
    EXPECT_EQ(settings.window.caption, "Vexlo Instant Messaging - Settings");
    EXPECT_TRUE(settings.window.visible());
    settings.myown.set(1);

    save_and_come_up();

    EXPECT_TRUE(settings.window.visible());
    EXPECT_EQ(settings.myown.value(), 1);
}

TEST_F(SettingsWindow, CallsItsOptionsByTheirNames)
{
    for (auto const& [box, name] :
         std::initializer_list<std::pair<controls::CheckBox Settings::*, char const*>>{
             {&Settings::soundon, "Play Sound when Message Arrives."},
             {&Settings::replytoall, "When Msg is Sent to All users, Respond to All users."},
             {&Settings::myown, "When sending to All users, include me."},
             {&Settings::showme, "Show My Name in user list"},
             {&Settings::autostartup, "Start With Windows"},
             {&Settings::ontop, "Show Pop Ups in front of all other Windows (Requires a restart)"},
             {&Settings::startminimized, "Minimize on Startup"},
             {&Settings::userlistfont, "Small Font in User List"},
             {&Settings::watchdog, "Use Vexlo Watchdog Service"},
             {&Settings::startclearusers, "Clear user cache at startup"},
             {&Settings::resetports, "Reset port after each transmission"},
             {&Settings::entersend, "Press ENTER to Send (Ctrl+Enter for New Line)"},
             {&Settings::hidetip, "Hide Tip"},
             {&Settings::autocheckusers, "Auto Check for users every 30 min"},
             {&Settings::autoresmaster, "Enable Auto Respond"},
             {&Settings::autoreply, "When forwarding, send Auto Response to orig. sender as well."},
         }) {
        EXPECT_EQ((settings.*box).caption, name);
    }
}

TEST_F(SettingsWindow, CallsItsButtonsByTheirNames)
{
    for (auto const& [button, name] :
         std::initializer_list<std::pair<controls::Button Settings::*, char const*>>{
             {&Settings::Command1, "Change"},
             {&Settings::Command2, "Change"},
             {&Settings::Command3, "Change"},
             {&Settings::btnChatPort1, "Change"},
             {&Settings::btnChatPort2, "Change"},
             {&Settings::btnSoundFile, "Select ..."},
             {&Settings::btnAutoForward, "Select ..."},
             {&Settings::Command6, "Test"},
             {&Settings::autoclean, "Auto Clean"},
             {&Settings::Command4, "Reset All Data"},
             {&Settings::btnTransfer, "Transfer"},
             {&Settings::savebtn, "Save"},
             {&Settings::cancelbtn, "Cancel"},
         }) {
        EXPECT_EQ((settings.*button).caption, name);
    }
}

TEST(SettingsWindowOfANewProgram, HoldsItsDesignValues)
{
    auto const letters = text::CharacterSet::western();
    forms::Forms const forms(letters);
    auto const& settings = forms.settings;

    EXPECT_EQ(settings.portlisten.caption(), "4112");
    EXPECT_EQ(settings.portsend.caption(), "4111");
    EXPECT_EQ(settings.chatport1.caption(), "4114");
    EXPECT_EQ(settings.chatport2.caption(), "4113");
    EXPECT_EQ(settings.msgfontsize.caption(), "10");
    EXPECT_EQ(settings.autorespond.text(), "I'm away from my desk");
    EXPECT_EQ(settings.ar3temp.caption(), "");
    EXPECT_FALSE(settings.autoreply.visible);
    EXPECT_FALSE(settings.window.visible());
}

// Its panel

std::string panel(sim::Peer& alice, std::string const& states)
{
    return "Version: 1.5.3\r\nLocal IP Address: " + alice.sending.local_address() +
           "\r\nLocal Host Name: ROOM12\r\nLocal User Name: alice\r\n" + states;
}

TEST_F(SettingsWindow, TellsTheStateOfTheProgramInItsPanel)
{
    EXPECT_EQ(settings.Frame1.caption(), "Vexlo Instant Messaging ");
    EXPECT_EQ(settings.localinfo.caption(),
              panel(alice, "Winsock 1 State: Listening\r\nWinsock 2 State: Ready"));
}

TEST_F(SettingsWindow, TellsSocketsThatAreClosed)
{
    alice.listening.close();
    alice.sending.close();

    alice.person.turn_to(settings.window);

    EXPECT_EQ(settings.localinfo.caption(),
              panel(alice, "Winsock 1 State: Closed\r\nWinsock 2 State: Closed"));
}

TEST_F(SettingsWindow, TellsThatTheNetworkIsDownAndNotTheStates)
{
    frmMain.statustext.set_caption("Network Error");

    alice.person.turn_to(settings.window);

    EXPECT_EQ(settings.localinfo.caption(),
              panel(alice, "Network Error:\r\nNo network connection"));
}

TEST_F(SettingsWindow, TakesNoOtherStatusForANetworkThatIsDown)
{
    frmMain.statustext.set_caption("Network Error ");

    alice.person.turn_to(settings.window);

    EXPECT_THAT(settings.localinfo.caption(), EndsWith("Winsock 2 State: Ready"));
}

TEST_F(SettingsWindow, ShowsTheLocalAndTheRemotePortOfTheListeningSocket)
{
    EXPECT_EQ(settings.portlisten.caption(), "4111");
    EXPECT_EQ(settings.portsend.caption(), "4112");
}

TEST_F(SettingsWindow, ShowsANewPortAtOnce)
{
    alice.boxes.will_enter("5111");
    press(settings.Command2);
    EXPECT_EQ(settings.portlisten.caption(), "5111");
    EXPECT_EQ(settings.portsend.caption(), "4112");

    alice.boxes.will_enter("5112");
    press(settings.Command3);
    EXPECT_EQ(settings.portlisten.caption(), "5111");
    EXPECT_EQ(settings.portsend.caption(), "5112");

    EXPECT_THAT(alice.boxes.texts(),
                testing::ElementsAre("Please enter the new Listening Port #:\r\n",
                                     "Please enter the new Sending Port #:\r\n"));
    EXPECT_EQ(in_file("LISTENINGPORT"), "5111");
    EXPECT_EQ(in_file("SENDINGPORT"), "5112");
}

TEST_F(SettingsWindow, RefreshesItsPanelBehindAPortBoxThatIsCancelled)
{
    frmMain.statustext.set_caption("Network Error");
    alice.boxes.will_enter("");

    press(settings.Command2);

    EXPECT_THAT(settings.localinfo.caption(), EndsWith("No network connection"));
}

TEST_F(SettingsWindow, ShowsANewNameAtOnce)
{
    alice.boxes.will_enter("Alice");

    press(settings.Command1);

    EXPECT_EQ(alice.boxes.shown().at(0).title, "Change your Vexlo IM Name");
    EXPECT_EQ(settings.friendlyname.caption(), "ALICE");
    EXPECT_EQ(frmMain.friendlyname, "ALICE");
}

TEST_F(SettingsWindow, HasAHiddenCommandThatReloadsAndAnnounces)
{
    settings.myown.set(1);

    alice.enter([this] { settings.Command7.run(); });

    EXPECT_EQ(settings.myown.value(), 0);
    EXPECT_THAT(sent_by(alice),
                testing::ElementsAre(flows::announcement(flows::alice_id, "ALICE MEYER")));
}

class ModalSettings : public OpenDesk {};

TEST_F(ModalSettings, APortBoxInThemWakesTheQueueThoughTheWindowIsStillOpen)
{
    // The refusal of equal ports keeps the rule of boxes by itself, and so takes the flag of the
    // modal window that it stands in.
    using namespace std::chrono_literals;
    auto& settings = alice.settings();
    while_open(settings.window, [&] {
        office.segment.inject_to("ROOM12",
                                 flows::message(flows::bob_id, flows::alice_id, "BOB> Lunch?"));
        office.run_for(1s);
        EXPECT_FALSE(alice.popup(0).window.visible());
        alice.boxes.will_enter("4112");
        alice.boxes.will_answer(platform::Answer::ok);
        alice.person.click(settings.window, settings.Command2);
        office.run_for(1s);
        EXPECT_TRUE(alice.popup(0).window.visible());
        EXPECT_TRUE(settings.window.visible());
        alice.person.click(settings.window, settings.cancelbtn);
    });

    alice.person.choose(alice.forms().menuform.toolsmenu, 0);

    EXPECT_EQ(alice.boxes.shown().size(), 2U);
}

// What marks a change

class SettingsMark : public SettingsDesk {
protected:
    /// What a person does there is marked, and nothing else happens.
    void expect_marked(std::string_view what) const
    {
        EXPECT_TRUE(settings.acchanged.on()) << what;
        EXPECT_THAT(alice.journal.lines(), IsEmpty()) << what;
        EXPECT_THAT(sent_by(alice), IsEmpty()) << what;
    }
};

TEST_F(SettingsMark, IsMadeByEachOfTheseBoxes)
{
    settings.ar3temp.set_caption("Bob"); // Else the box about forwarding is out of sight.
    alice.journal.switch_on();
    for (auto const box :
         {&Settings::autocheckusers, &Settings::autoreply, &Settings::autoresmaster,
          &Settings::autostartup, &Settings::entersend, &Settings::hidetip, &Settings::myown,
          &Settings::ontop, &Settings::replytoall, &Settings::resetports, &Settings::showme,
          &Settings::soundon, &Settings::startclearusers, &Settings::startminimized,
          &Settings::userlistfont, &Settings::watchdog}) {
        settings.acchanged.set(0);

        tick(settings.*box);

        expect_marked((settings.*box).caption);
    }
}

TEST_F(SettingsMark, IsMadeByEachResponseTextAndByTheFontSize)
{
    alice.journal.switch_on();
    for (auto& response : settings.ar) {
        settings.acchanged.set(0);
        fill(response, "gone");
        expect_marked("gone");
    }
    settings.acchanged.set(0);
    settings.msgfontsize.set_caption("14");
    expect_marked("14");
}

TEST_F(SettingsMark, IsNotMadeByTheQuickButtonsNorByTheTextInForce)
{
    fill(settings.qsend[3], "Tea");
    fill(settings.qsendtext[3], "Tea is ready");
    tick(settings.qsendi[3]);
    fill(settings.autorespond, "gone");

    EXPECT_FALSE(settings.acchanged.on());
}

TEST_F(SettingsMark, StaysWhenABoxIsUntickedAgain)
{
    tick(settings.myown);
    tick(settings.myown);

    EXPECT_TRUE(settings.acchanged.on());
}

TEST_F(SettingsMark, IsClearedWhenTheWindowComesUpAndNotWhenItIsActiveAgain)
{
    tick(settings.myown);
    alice.person.turn_to(settings.window);
    EXPECT_TRUE(settings.acchanged.on());

    settings.window.hide();
    come_up();
    EXPECT_FALSE(settings.acchanged.on());
}

TEST_F(SettingsMark, OfTheSoundComesWithTheSoundItselfAtOnce)
{
    tick(settings.soundon);
    EXPECT_EQ(frmMain.Check2.value(), 0);

    tick(settings.soundon);
    EXPECT_EQ(frmMain.Check2.value(), 1);
}

TEST_F(SettingsMark, AForwardTargetBringsTheBoxAboutItAndNoneTakesIt)
{
    settings.ar3temp.set_caption("Bob");
    EXPECT_TRUE(settings.autoreply.visible);

    settings.ar3temp.set_caption("");
    EXPECT_FALSE(settings.autoreply.visible);
    EXPECT_FALSE(settings.acchanged.on());
}

} // namespace
