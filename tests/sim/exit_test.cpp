#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using controls::Window;
using platform::Answer;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;

class Exit : public TwoPeople {
protected:
    void show_history_that_goes_with_the_main_window()
    {
        historyfrm.window.show();
        historyfrm.minmain.set(1);
        historyfrm.showmain.caption = "as it was";
    }

    void expect_history_left_alone()
    {
        EXPECT_FALSE(frmMain.window.visible());
        EXPECT_TRUE(historyfrm.window.visible());
        EXPECT_EQ(historyfrm.showmain.caption, "as it was");
        EXPECT_EQ(historyfrm.wasopen.value(), 0);
    }

    forms::FrmMain& frmMain = alice.frmMain();
    forms::HistoryFrm& historyfrm = alice.forms().historyfrm;
};

TEST_F(Exit, TheCloseSpotAsks)
{
    alice.boxes.will_answer(Answer::cancel);

    alice.person.click(frmMain.spotx);

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.title, "Exit Vexlo Instant Messaging");
    EXPECT_EQ(box.text, "Do you want Vexlo IM to continue running in the background?\r\n\r\n"
                        "  Yes - Minimize to Tray (run in background)\r\n"
                        "   No - Terminate");
    EXPECT_EQ(box.buttons, platform::Buttons::yes_no_cancel);
    EXPECT_EQ(box.icon, platform::Icon::question);
}

TEST_F(Exit, CancelChangesNothing)
{
    auto const log = alice.log();
    alice.journal.switch_on();
    alice.boxes.will_answer(Answer::cancel);

    alice.person.click(frmMain.spotx);

    EXPECT_TRUE(alice.running());
    EXPECT_TRUE(frmMain.window.visible());
    EXPECT_EQ(alice.log(), log);
    EXPECT_THAT(alice.journal.lines(), ElementsAre(testing::StartsWith("box ")));
}

TEST_F(Exit, YesHidesTheProgramAndLeavesItOnTheNetwork)
{
    alice.boxes.will_answer(Answer::yes);

    alice.person.click(frmMain.spotx);

    EXPECT_EQ(frmMain.minimized, "yes");
    EXPECT_EQ(frmMain.window.state, Window::State::minimised);
    EXPECT_FALSE(frmMain.window.visible());
    EXPECT_THAT(office.segment.texts(), IsEmpty());
    bob.person.send_to("Alice Meyer", "Still there?");
    office.settle();
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(Exit, YesLeavesTheHistoryWindowAlone)
{
    show_history_that_goes_with_the_main_window();
    alice.boxes.will_answer(Answer::yes);

    alice.person.click(frmMain.spotx);

    expect_history_left_alone();
}

TEST_F(Exit, RowsWaitBehindTheQuestionAndAreHandledAfterIt)
{
    alice.boxes.will_answer(Answer::cancel).after(10s).meanwhile([&] {
        bob.person.send_to("Alice Meyer", "Hello");
    });

    alice.person.click(frmMain.spotx);

    EXPECT_EQ(frmMain.cue.size(), 1U);
    EXPECT_FALSE(alice.popup(0).window.visible());
    EXPECT_TRUE(frmMain.Timer3.enabled());
    office.run_for(tick);
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(Exit, NoGoesThroughEverythingInItsOrder)
{
    historyfrm.savebtn.attach([this] { alice.journal.note("history"); });
    alice.forms().menuform.unloadmecommand.attach([this] { alice.journal.note("unload"); });
    alice.clock.set({.year = 2026, .month = 11, .day = 15, .hour = 17, .minute = 18, .second = 2});
    alice.journal.switch_on();

    alice.person.leave();

    EXPECT_THAT(
        alice.journal.lines(),
        HasInOrder(Lines{"write users.txt", "write settings.txt", "write logs/log261115171802.txt",
                         "remove logs/logtemp.txt", "send " + sign_off(alice_id, "ALICE MEYER"),
                         "close 4111", "close 4112", "history", "unload", "end 0"}));
    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.report(), "");
}

TEST_F(Exit, TheLogIsFlushedIntoADatedFile)
{
    alice.clock.set({.year = 2026, .month = 11, .day = 15, .hour = 17, .minute = 18, .second = 2});

    alice.person.leave();

    EXPECT_EQ(alice.files.content("logs/log261115171802.txt"),
              "11-15-26:03:15p:Vexlo IM.\t\r\n---\r\n"
              "11-15-26:05:18p:Vexlo IM Closed.\t\r\n---\r\n");
    EXPECT_THAT(alice.log(), IsEmpty());
    EXPECT_FALSE(alice.files.has("logs/logtemp.txt"));
}

TEST_F(Exit, AMirrorThatIsGoneAlreadyDoesNotHoldUpTheExit)
{
    alice.files.erase("logs/logtemp.txt");

    alice.person.leave();

    EXPECT_THAT(office.segment.texts(), ElementsAre(sign_off(alice_id, "ALICE MEYER")));
}

TEST_F(Exit, ThePeersSeeTheSignOff)
{
    alice.person.leave();
    office.run_for(tick + 1ms);

    EXPECT_EQ(bob.frmMain().statustext.caption(), "ALICE MEYER has signed off");
}

TEST_F(Exit, TheSignOffCarriesTheIdentityOfTheLastRound)
{
    alice.environment.variables["computername"] = "Room99";

    alice.person.leave();

    EXPECT_THAT(office.segment.texts(), ElementsAre(sign_off(alice_id, "ALICE MEYER")));
}

TEST_F(Exit, ANextStartFindsNoLeftOver)
{
    alice.person.leave();
    alice.start();

    EXPECT_THAT(alice.log(), ElementsAre(testing::HasSubstr("Vexlo IM.\t")));
}

TEST_F(Exit, ACrashLeavesTheLogToTheNextStart)
{
    alice.person.send_to("Bob", "Lunch?");
    auto const rows = alice.log();
    alice.crash();
    EXPECT_THAT(office.segment.texts(), Not(Contains(testing::StartsWith("-**"))));

    alice.start();

    EXPECT_THAT(alice.log().at(0), EndsWith("Vexlo IM shutdown correctly.\t\r\n---"));
    EXPECT_EQ(alice.log().at(1), rows.at(0).substr(0, rows.at(0).find('\r')));
}

TEST_F(Exit, AFileThatCannotBeWrittenDoesNotCancelTheExit)
{
    alice.files.unwritable = {"users.txt"};
    bool unloaded = false;
    alice.forms().menuform.unloadmecommand.attach([&] { unloaded = true; });
    alice.journal.switch_on();
    auto const shows = frmMain.window.shows();

    alice.person.leave();

    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.report(), "");
    EXPECT_TRUE(unloaded);
    EXPECT_EQ(frmMain.window.shows(), shows + 1);
    EXPECT_THAT(alice.boxes.shown(), testing::SizeIs(1));
    // The way out is cut short: nobody is told.
    EXPECT_THAT(office.segment.texts(), IsEmpty());
    EXPECT_THAT(alice.journal.lines(), Not(Contains("write settings.txt")));
}

TEST_F(Exit, AMissingNetworkDoesNotCancelTheExit)
{
    alice.unplug();

    alice.person.leave();

    EXPECT_EQ(alice.status(), 0);
    EXPECT_THAT(alice.boxes.shown(), testing::SizeIs(1));
    EXPECT_FALSE(alice.files.has("logs/logtemp.txt"));
}

TEST_F(Exit, AHistoryThatCannotBeSavedDoesNotCancelTheExit)
{
    historyfrm.savebtn.attach([] { throw text::Failure("Disk full", 61, "file"); });

    alice.person.leave();

    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.report(), "");
    EXPECT_THAT(office.segment.texts(), ElementsAre(sign_off(alice_id, "ALICE MEYER")));
}

TEST_F(Exit, ATakenAddressOnTheWayOutIsToldFirst)
{
    alice.host.send_failure = text::Failure(text::address_in_use, 98, "send");
    alice.boxes.will_answer(Answer::no);
    int flag = 0;
    alice.boxes.will_answer(Answer::ok).meanwhile([&] { flag = frmMain.boxopen.value(); });

    alice.person.click(frmMain.spotx);

    EXPECT_EQ(alice.boxes.texts().at(1), "Port 4112 is in use.");
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(Exit, ATakenAddressIsToldByThePortOfTheLastBind)
{
    frmMain.bindingsocket = "DiscoveryPort";
    alice.host.send_failure = text::Failure(text::address_in_use, 98, "send");
    alice.boxes.will_answer(Answer::no);
    alice.boxes.will_answer(Answer::ok);

    alice.person.click(frmMain.spotx);

    EXPECT_EQ(alice.boxes.texts().at(1), "Port 4111 is in use.");
}

TEST_F(Exit, AnyTakenPlaceIsToldAsATakenPort)
{
    // The handler reads which socket was bound last, not what has failed.
    historyfrm.savebtn.attach([] { throw text::Failure(text::address_in_use, 98, "history"); });
    alice.boxes.will_answer(Answer::no);
    alice.boxes.will_answer(Answer::ok);

    alice.person.click(frmMain.spotx);

    EXPECT_EQ(alice.boxes.texts().at(1), "Port 4112 is in use.");
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(Exit, TheMinimiseSpotSendsTheProgramToTheTray)
{
    historyfrm.wasopen.set(1);

    alice.person.click(frmMain.spotmin);

    EXPECT_EQ(frmMain.minimized, "yes");
    EXPECT_EQ(historyfrm.showmain.caption, "Show Main");
    EXPECT_EQ(frmMain.window.state, Window::State::minimised);
    EXPECT_FALSE(frmMain.window.visible());
    EXPECT_EQ(historyfrm.wasopen.value(), 0);
}

TEST_F(Exit, TheHistoryWindowGoesWithTheMainWindowWhenItsOptionSaysSo)
{
    historyfrm.window.show();
    historyfrm.minmain.set(1);

    alice.person.click(frmMain.spotmin);

    EXPECT_FALSE(historyfrm.window.visible());
    EXPECT_EQ(historyfrm.wasopen.value(), 1);
}

TEST_F(Exit, TheHistoryWindowStaysWithoutItsOption)
{
    historyfrm.window.show();
    historyfrm.minmain.set(0);

    alice.person.click(frmMain.spotmin);

    EXPECT_TRUE(historyfrm.window.visible());
    EXPECT_EQ(historyfrm.wasopen.value(), 0);
}

TEST_F(Exit, AHiddenHistoryWindowIsNotNotedAsOpen)
{
    historyfrm.window.hide();
    historyfrm.minmain.set(1);

    alice.person.click(frmMain.spotmin);

    EXPECT_EQ(historyfrm.wasopen.value(), 0);
}

TEST_F(Exit, HideMeHidesTheWindowAndTellsNobody)
{
    alice.enter([&] { frmMain.Command4.run(); });
    office.settle();

    EXPECT_EQ(frmMain.minimized, "yes");
    EXPECT_EQ(frmMain.window.state, Window::State::minimised);
    EXPECT_FALSE(frmMain.window.visible());
    EXPECT_THAT(office.segment.texts(), IsEmpty());
}

TEST_F(Exit, HideMeLeavesTheHistoryWindowAlone)
{
    show_history_that_goes_with_the_main_window();

    alice.enter([&] { frmMain.Command4.run(); });

    expect_history_left_alone();
}

TEST_F(Exit, TheMenuSpotPopsUpTheToolsMenu)
{
    int popped_up = 0;
    alice.forms().menuform.toolsmenu.popped_up = [&] { ++popped_up; };

    alice.person.click(frmMain.spotmenu);

    EXPECT_EQ(popped_up, 1);
}

TEST_F(Exit, AnInnerBoxTakesTheFlagFromTheOuterOne)
{
    // The flag is no counter: behind the box that is still open the queue goes on.
    alice.boxes.will_answer(Answer::cancel).meanwhile([&] {
        alice.boxes.will_enter("4112");
        alice.boxes.will_answer(Answer::ok);
        alice.enter([&] { frmMain.changeports1.run(); });
        EXPECT_EQ(frmMain.boxopen.value(), 0);
        bob.person.send_to("Alice Meyer", "Hello");
        office.run_for(200ms);
        EXPECT_TRUE(alice.popup(0).window.visible());
    });

    alice.person.click(frmMain.spotx);
}

} // namespace
