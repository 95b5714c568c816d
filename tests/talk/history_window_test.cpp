#include "tests/talk/talk.h"

namespace {

using namespace talk;
using controls::Window;
using platform::Answer;
using platform::Buttons;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The window of the last hundred messages, but for its rows.
class HistoryWindow : public Talk {
protected:
    HistoryWindow()
    {
        historyfrm.window.repaint.attach([this] { ++drawn; });
    }

    void press(controls::Button const& button) { alice.person.click(historyfrm.window, button); }
    void choose(std::size_t entry) { alice.person.choose(historyfrm.mnuoptions, entry); }

    forms::FrmMain& frmMain = alice.frmMain();
    forms::HistoryFrm& historyfrm = alice.forms().historyfrm;
    Window& main = frmMain.window;
    Window& window = historyfrm.window;
    int drawn = 0;
};

TEST_F(HistoryWindow, BearsItsCaptionsAndTips)
{
    EXPECT_EQ(window.caption, "Vexlo History");
    EXPECT_EQ(historyfrm.ListView1.tool_tip, "Dbl click to Recall");
    EXPECT_EQ(historyfrm.autores.tool_tip, "Auto Respond is on");
    EXPECT_EQ(historyfrm.showmain.caption, "Hide Main");
    EXPECT_FALSE(window.visible());
}

TEST_F(HistoryWindow, ComesUpByTheButtonOfTheMainWindow)
{
    window.state = Window::State::minimised;
    historyfrm.showmain.caption = "Show Main";

    alice.person.click(frmMain.history);

    EXPECT_TRUE(window.visible());
    EXPECT_EQ(window.state, Window::State::normal);
    EXPECT_EQ(historyfrm.showmain.caption, "Hide Main");
}

TEST_F(HistoryWindow, ComesUpAsItIsByTheCommandOfTheTray)
{
    historyfrm.showmain.caption = "Show Main";

    open_history();

    EXPECT_TRUE(window.visible());
    EXPECT_EQ(historyfrm.showmain.caption, "Show Main");
}

TEST_F(HistoryWindow, NotesThatItIsOpenAndGivesTheListTheFocusWhenItIsActive)
{
    open_history();
    auto const requests = historyfrm.ListView1.focus.requests();

    alice.person.turn_to(window);

    EXPECT_EQ(historyfrm.wasopen.value(), 1);
    EXPECT_EQ(historyfrm.ListView1.focus.requests(), requests + 1);
}

TEST_F(HistoryWindow, IsClosedAndNotNotedAsOpen)
{
    open_history();
    alice.person.turn_to(window);

    press(historyfrm.closebtn);

    EXPECT_FALSE(window.visible());
    EXPECT_EQ(historyfrm.wasopen.value(), 0);
}

TEST_F(HistoryWindow, HidesAndShowsTheMainWindow)
{
    open_history();

    press(historyfrm.showmain);
    EXPECT_FALSE(main.visible());
    EXPECT_EQ(main.state, Window::State::minimised);
    EXPECT_EQ(frmMain.minimized, "yes");
    EXPECT_EQ(historyfrm.showmain.caption, "Show Main");

    press(historyfrm.showmain);
    EXPECT_TRUE(main.visible());
    EXPECT_EQ(main.state, Window::State::normal);
    EXPECT_EQ(frmMain.minimized, "no");
    EXPECT_EQ(historyfrm.showmain.caption, "Hide Main");
}

TEST_F(HistoryWindow, StaysWhenItHidesTheMainWindow)
{
    historyfrm.minmain.set(1);
    open_history();

    press(historyfrm.showmain);

    EXPECT_TRUE(window.visible());
}

TEST_F(HistoryWindow, ComesBackFromTheTrayWithTheMainWindowItWentWith)
{
    historyfrm.minmain.set(1);
    open_history();
    alice.person.click(frmMain.spotmin);
    ASSERT_FALSE(window.visible());

    alice.enter([this] { alice.tray_icon.left_pressed(); });

    EXPECT_TRUE(window.visible());
    EXPECT_TRUE(main.visible());
    EXPECT_EQ(historyfrm.wasopen.value(), 0);
}

TEST_F(HistoryWindow, StartsTheLogViewerAndPassesOverItsLack)
{
    open_history();

    press(historyfrm.searchlogs);
    EXPECT_THAT(alice.outside.started, ElementsAre("/home/alice/vexlo/vexlologviewer.exe"));

    alice.outside.refuses = true;
    press(historyfrm.searchlogs);
    EXPECT_TRUE(alice.running());
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_TRUE(window.visible());
}

TEST_F(HistoryWindow, MarksThatAutoRespondIsOn)
{
    EXPECT_FALSE(historyfrm.autores.visible);

    alice.person.choose(alice.forms().menuform.autores, 0);
    EXPECT_TRUE(historyfrm.autores.visible);

    alice.person.choose(alice.forms().menuform.autores, 4);
    EXPECT_FALSE(historyfrm.autores.visible);
}

TEST_F(HistoryWindow, PopsItsMenuUp)
{
    int popped_up = 0;
    historyfrm.mnuoptions.popped_up = [&] { ++popped_up; };
    open_history();

    press(historyfrm.optionsbtn);

    EXPECT_EQ(popped_up, 1);
}

TEST_F(HistoryWindow, ItsMenuHasSixEntries)
{
    Texts captions;
    for (auto const& entry : historyfrm.mnuoptions.entries) {
        captions.push_back(entry.caption);
    }

    EXPECT_THAT(captions, ElementsAre("Keep on Top", "Minimize with main Window",
                                      "Anchor to Main Window", "-", "Clear", "Save now"));
}

TEST_F(HistoryWindow, ItsMenuTogglesEachOptionAndItsMark)
{
    std::vector<controls::CheckBox*> const options{&historyfrm.ontop, &historyfrm.minmain,
                                                   &historyfrm.anchor};
    for (std::size_t entry = 0; entry < options.size(); ++entry) {
        choose(entry);
        EXPECT_EQ(options[entry]->value(), 1) << entry;
        EXPECT_TRUE(historyfrm.mnuoptions[entry].checked) << entry;

        choose(entry);
        EXPECT_EQ(options[entry]->value(), 0) << entry;
        EXPECT_FALSE(historyfrm.mnuoptions[entry].checked) << entry;
    }
}

TEST_F(HistoryWindow, TheSeparatorOfItsMenuDoesNothing)
{
    hear("BOB> one");
    alice.journal.switch_on();

    choose(3);

    EXPECT_THAT(alice.journal.lines(), IsEmpty());
    EXPECT_EQ(alice.history().count(), 1);
}

TEST_F(HistoryWindow, KeptOnTopItIsAboveAllAndGivenUpItIsBelowAll)
{
    choose(0);
    EXPECT_EQ(window.stacking, Window::Stacking::on_top);
    EXPECT_EQ(drawn, 1);

    choose(0);
    EXPECT_EQ(window.stacking, Window::Stacking::at_the_bottom);
    EXPECT_EQ(drawn, 2);
}

/// "Clear" in the menu of the history.
class ClearedHistory : public HistoryWindow {
protected:
    ClearedHistory() { hear("BOB> one"); }

    void clear(Answer answer)
    {
        alice.boxes.will_answer(answer);
        choose(4);
    }
};

TEST_F(ClearedHistory, AsksFirst)
{
    clear(Answer::no);

    ASSERT_THAT(alice.boxes.shown(), SizeIs(1));
    EXPECT_EQ(alice.boxes.shown()[0].text, "Are you sure?");
    EXPECT_EQ(alice.boxes.shown()[0].title, "Clear History");
    EXPECT_EQ(alice.boxes.shown()[0].buttons, Buttons::yes_no);
    EXPECT_THAT(told(alice.history()), ElementsAre("From|Bob|one"));
    EXPECT_EQ(historyfrm.message.text(), "BOB> one");
}

TEST_F(ClearedHistory, IsEmptyAndSoIsWhatItShowed)
{
    clear(Answer::yes);

    EXPECT_TRUE(alice.history().empty());
    EXPECT_EQ(alice.history().selected(), 0);
    EXPECT_EQ(historyfrm.message.text(), "");
    EXPECT_FALSE(alice.files.has("hist.dat"));
}

TEST_F(ClearedHistory, IsEmptyBehindAnyAnswerButNo)
{
    clear(Answer::cancel);

    EXPECT_TRUE(alice.history().empty());
}

TEST_F(ClearedHistory, LeavesTheQueueWaitingOnBothAnswersUntilTheNextBox)
{
    for (auto const answer : {Answer::no, Answer::yes}) {
        clear(answer);
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        alice.person.click(alice.popup(0), alice.popup(0).Command1);

        hear("BOB> hello?");
        EXPECT_THAT(popups_on_show(alice), IsEmpty());

        alice.boxes.will_answer(Answer::cancel);
        alice.person.click(frmMain.spotx);
        office.settle();
        EXPECT_THAT(popups_on_show(alice), ElementsAre(0));
    }
}

TEST_F(ClearedHistory, LetsRowsWaitBehindItsBox)
{
    int flag = 0;
    alice.boxes.will_answer(Answer::no).meanwhile([&] { flag = frmMain.boxopen.value(); });

    choose(4);

    EXPECT_EQ(flag, 1);
}

/// Where the history window stands when it is docked, on a screen of 28800 by 16200.
class DockedHistory : public HistoryWindow {
protected:
    DockedHistory()
    {
        main.place(10000, 2000);
        window.place(77, 88);
    }

    void put_main(float left, float top)
    {
        main.place(left, top);
        alice.enter([this] { main.moved.run(); });
    }
};

TEST_F(DockedHistory, HangsBelowTheMainWindowFlushRight)
{
    choose(2);

    EXPECT_EQ(window.left, 10000 + main.width - window.width);
    EXPECT_EQ(window.top, 2000 + main.height);
}

TEST_F(DockedHistory, FollowsTheMainWindow)
{
    choose(2);

    put_main(12000, 3000);

    EXPECT_EQ(window.left, 12000 + main.width - window.width);
    EXPECT_EQ(window.top, 3000 + main.height);
}

TEST_F(DockedHistory, DoesNotFollowWithoutItsOption)
{
    put_main(12000, 3000);

    EXPECT_EQ(window.left, 77);
    EXPECT_EQ(window.top, 88);
}

TEST_F(DockedHistory, DoesNotFollowWhileItIsMinimised)
{
    choose(2);
    window.state = Window::State::minimised;
    window.place(77, 88);

    put_main(12000, 3000);

    EXPECT_EQ(window.left, 77);
    EXPECT_EQ(window.top, 88);
}

TEST_F(DockedHistory, IsPlacedWhenItComesUpByTheButton)
{
    historyfrm.anchor.set(1);
    window.place(77, 88);
    window.state = Window::State::minimised;

    alice.person.click(frmMain.history);

    EXPECT_EQ(window.left, 10000 + main.width - window.width);
    EXPECT_EQ(window.top, 2000 + main.height);
}

TEST_F(DockedHistory, StandsAboveAMainWindowThatLeavesNoRoomBelow)
{
    choose(2);
    float const lowest = 16200 - main.height - window.height;

    put_main(12000, lowest);
    EXPECT_EQ(window.top, lowest + main.height);

    put_main(12000, lowest + 1);
    EXPECT_EQ(window.top, lowest + 1 - window.height);
}

TEST_F(DockedHistory, KeepsItsHeightWhereTheMainWindowIsTooFarToTheLeft)
{
    choose(2);
    window.place(77, 88);
    float const leftmost = window.width - main.width + 1;

    put_main(leftmost, 3000);
    EXPECT_EQ(window.left, 1);
    EXPECT_EQ(window.top, 3000 + main.height);

    put_main(leftmost - 1, 5000);
    EXPECT_EQ(window.left, 0);
    EXPECT_EQ(window.top, 3000 + main.height);
}

TEST_F(DockedHistory, PushesAMainWindowAboveTheScreenBackToItsEdge)
{
    choose(2);

    put_main(12000, -300);

    EXPECT_EQ(main.top, 0);
    EXPECT_EQ(main.left, 12000);
    EXPECT_EQ(window.top, main.height);
}

TEST_F(DockedHistory, FindsNoRoomAboveEitherOnASmallScreenAndHangsBelow)
{
    alice.screen.high = 8000;
    choose(2);

    put_main(12000, 0);

    EXPECT_EQ(main.top, 0);
    EXPECT_EQ(window.top, main.height);
}

} // namespace
