// What sets the program right again: Auto Clean, Reset All and the transfer utility.

#include "tests/desk/settings_desk.h"

namespace {

using namespace desk;
using flows::announcement;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

// Auto Clean

class AutoClean : public SettingsDesk {};

TEST_F(AutoClean, LeavesTheOwnRowAloneInTheFileThenAnnounces)
{
    alice.journal.switch_on();

    press(settings.autoclean);

    EXPECT_EQ(alice.files.content("users.txt"), "[ROOM12\\ALICE]=ALICE MEYER\r\n");
    EXPECT_THAT(
        alice.journal.lines(),
        ElementsAre("write users.txt", "send " + announcement(flows::alice_id, "ALICE MEYER")));
}

TEST_F(AutoClean, MarksAChange)
{
    press(settings.autoclean);

    EXPECT_TRUE(settings.acchanged.on());
}

TEST_F(AutoClean, LeavesTheListsToTheReloadOfSave)
{
    press(settings.autoclean);
    EXPECT_EQ(frmMain.userlist.count(), 3);
    EXPECT_EQ(frmMain.allusers.count(), 3);
    carl.crash();

    save();
    EXPECT_THAT(frmMain.userlist.rows(), ElementsAre("[ROOM12\\ALICE]=ALICE MEYER"));
    office.settle();

    EXPECT_THAT(frmMain.userlist.rows(),
                ElementsAre("[ROOM07\\BOB]=BOB", "[ROOM12\\ALICE]=ALICE MEYER"));
    EXPECT_THAT(frmMain.allusers.rows(), ElementsAre("Alice Meyer", "Bob"));
}

TEST_F(AutoClean, IsNotUndoneByCancel)
{
    press(settings.autoclean);

    cancel();

    EXPECT_EQ(alice.files.content("users.txt"), "[ROOM12\\ALICE]=ALICE MEYER\r\n");
    EXPECT_THAT(frmMain.userlist.rows(), ElementsAre("[ROOM12\\ALICE]=ALICE MEYER"));
}

// Reset All

class ResetAll : public SettingsDesk {
protected:
    void answer(platform::Answer first)
    {
        alice.boxes.will_answer(first);
        if (first == platform::Answer::yes) {
            alice.boxes.will_answer(platform::Answer::ok);
        }
        press(settings.Command4);
    }
};

TEST_F(ResetAll, AsksWithTheListeningSocketClosedAndTakesNo)
{
    alice.journal.switch_on();

    answer(platform::Answer::no);

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.text, "Are you Sure?");
    EXPECT_EQ(box.title, "Reset All");
    EXPECT_EQ(box.buttons, platform::Buttons::yes_no);
    EXPECT_THAT(alice.journal.lines(), ElementsAre("close 4111", "box Are you Sure?", "bind 4111"));
    EXPECT_TRUE(alice.running());
}

TEST_F(ResetAll, GoesOnWithAnyAnswerButNo)
{
    alice.boxes.will_answer(platform::Answer::cancel);
    alice.boxes.will_answer(platform::Answer::ok);

    press(settings.Command4);

    EXPECT_FALSE(alice.files.has("groups.txt"));
    EXPECT_FALSE(alice.running());
}

TEST_F(ResetAll, GoesThroughEverythingInItsOrder)
{
    alice.forms().menuform.unloadmecommand.attach([this] { alice.journal.note("unload"); });
    alice.journal.switch_on();

    answer(platform::Answer::yes);

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("close 4111", "box Are you Sure?", "bind 4111", "remove settings.txt",
                            "remove users.txt", "remove buttons.txt", "remove groups.txt",
                            "close 4111", "box Please Restart Vexlo Instant Messaging",
                            "close 4112", "unload", "end 0"));
    EXPECT_EQ(alice.boxes.shown().at(1).title, "Reset All");
    EXPECT_EQ(alice.boxes.shown().at(1).buttons, platform::Buttons::ok);
    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.report(), "");
}

TEST_F(ResetAll, TakesTheIconAwayAndSignsOffFromNobody)
{
    answer(platform::Answer::yes);
    office.settle();

    EXPECT_FALSE(alice.tray_icon.shown);
    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_THAT(bob.frmMain().allusers.rows(), Contains("Alice Meyer"));
}

TEST_F(ResetAll, LeavesHistoryAndLogs)
{
    alice.files.put("hist.dat", "a history");
    alice.files.put("logs/log261114080000.txt", "an older log");
    auto before = alice.files.names();

    answer(platform::Answer::yes);

    for (auto const* const gone : {"settings.txt", "users.txt", "buttons.txt", "groups.txt"}) {
        EXPECT_EQ(before.erase(gone), 1U) << gone;
    }
    EXPECT_EQ(alice.files.names(), before);
}

TEST_F(ResetAll, LosesWhatArrivesBehindItsQuestion)
{
    using namespace std::chrono_literals;
    alice.boxes.will_answer(platform::Answer::no).after(1s).meanwhile([this] {
        office.segment.inject_to("ROOM12",
                                 flows::message(flows::bob_id, flows::alice_id, "BOB> Lunch?"));
    });

    press(settings.Command4);
    office.settle();

    EXPECT_FALSE(alice.popup(0).window.visible());
}

TEST_F(ResetAll, IsFollowedByAFirstRun)
{
    auto const groups = alice.files.content("groups.txt");
    tick(settings.myown);
    fill(settings.qsend[3], "Tea");
    save_and_come_up();
    answer(platform::Answer::yes);

    alice.boxes.will_enter("Alice");
    alice.start();
    office.settle();

    EXPECT_EQ(alice.boxes.shown().back().title, "Vexlo Instant Messaging Setup");
    EXPECT_EQ(alice.settings().myown.value(), 0);
    EXPECT_EQ(alice.frmMain().friendlyname, "ALICE");
    EXPECT_EQ(alice.files.content("groups.txt"), groups);
    EXPECT_THAT(alice.files.content("buttons.txt"), Not(testing::HasSubstr("\"Tea\"")));
    EXPECT_TRUE(alice.files.has("buttons.txt"));
    EXPECT_THAT(in_file("AUTOCHECKUSERS"), "0");
}

TEST_F(ResetAll, IsNotGuardedAgainstAFileThatWasRemovedByHand)
{
    alice.files.erase("users.txt");

    alice.boxes.will_answer(platform::Answer::yes);
    press(settings.Command4);

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "File not found");
    EXPECT_FALSE(alice.files.has("settings.txt"));
    EXPECT_TRUE(alice.files.has("buttons.txt"));
}

// The transfer utility

constexpr auto utility = "sendsettings.exe";
constexpr auto name_alone = "Settings and Buttons Transfer Utility";
constexpr auto not_installed = "Settings and Buttons Transfer Utility  (Utility not Installed)";

class TransferUtility : public SettingsDesk {
protected:
    void expect_offered() const
    {
        EXPECT_TRUE(settings.btnTransfer.enabled);
        EXPECT_EQ(settings.transfername.caption(), name_alone);
        EXPECT_TRUE(settings.transfertext.visible);
        EXPECT_EQ(settings.transfertext.caption(),
                  "Exchange Settings, Buttons configuration and Group Configuration with other "
                  "users.");
    }
    void expect_missing() const
    {
        EXPECT_FALSE(settings.btnTransfer.enabled);
        EXPECT_EQ(settings.transfername.caption(), not_installed);
        EXPECT_FALSE(settings.transfertext.visible);
    }
};

TEST_F(TransferUtility, IsSaidNotToBeInstalledWhereItIsMissing)
{
    expect_missing();
}

TEST_F(TransferUtility, IsOfferedWhereItIsThere)
{
    settings.window.hide();
    alice.files.put(utility, "a program");

    come_up();

    expect_offered();
}

TEST_F(TransferUtility, IsNoFolder)
{
    alice.files.make_folder("/home/alice/vexlo/sendsettings.exe");

    alice.person.turn_to(settings.window);

    expect_missing();
}

TEST_F(TransferUtility, IsLookedForWheneverTheWindowBecomesActive)
{
    alice.files.put(utility, "a program");
    expect_missing();

    alice.person.turn_to(settings.window);

    expect_offered();
}

TEST_F(TransferUtility, IsStartedByItsButton)
{
    alice.files.put(utility, "a program");
    alice.person.turn_to(settings.window);

    press(settings.btnTransfer);

    EXPECT_THAT(alice.outside.started, ElementsAre("/home/alice/vexlo/sendsettings.exe"));
}

TEST_F(TransferUtility, ThatIsRemovedMeanwhileLeavesAButtonThatDoesNothing)
{
    alice.files.put(utility, "a program");
    alice.person.turn_to(settings.window);
    alice.files.erase(utility);
    alice.outside.refuses = true;

    press(settings.btnTransfer);

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    expect_offered();
    alice.person.turn_to(settings.window);
    expect_missing();
}

} // namespace
