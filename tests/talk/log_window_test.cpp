#include "tests/talk/talk.h"

namespace {

using namespace talk;
using platform::Answer;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t view_logs = 8;
constexpr auto mirror = "logs/logtemp.txt";

/// The window of the log.
class LogWindow : public Talk {
protected:
    LogWindow() { open(); }

    void open() { alice.person.choose(alice.forms().menuform.toolsmenu, view_logs); }
    void press(controls::Button const& button) { alice.person.click(log.window, button); }

    void expect_ended(std::string_view report)
    {
        EXPECT_FALSE(alice.running());
        EXPECT_EQ(alice.report(), report);
    }

    /// What the window shows of this row.
    std::string shown_of(std::string_view row)
    {
        list.add(row);
        alice.enter([this] { list.choose(list.count() - 1); });
        return log.Text1.text();
    }

    forms::Log& log = alice.forms().log;
    controls::ListBox& list = log.lstMessages;
    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(LogWindow, ComesUpFromTheToolsMenuAndIsInNobodysWay)
{
    EXPECT_TRUE(log.window.visible());
    EXPECT_FALSE(log.window.modal);
    EXPECT_EQ(frmMain.boxopen.value(), 0);
}

TEST_F(LogWindow, MovesToTheLastRowWhenItComesUp)
{
    hear("BOB> one");

    alice.person.turn_to(log.window);

    EXPECT_EQ(list.index(), list.count() - 1);
    EXPECT_EQ(log.Text1.text(), "11-15-26:03:18p\r\nMsg from BOB\t\r\nBOB> one\r\n---\r\n");
}

TEST_F(LogWindow, LeavesTheRowThatAPersonPickedBehindABox)
{
    hear("BOB> one");
    alice.person.turn_to(log.window);
    alice.enter([this] { list.choose(0); });

    alice.person.turn_to(log.window); // As the desktop does behind each box.
    EXPECT_EQ(list.index(), 0);

    open();
    alice.person.turn_to(log.window);
    EXPECT_EQ(list.index(), list.count() - 1);
}

TEST_F(LogWindow, WithoutRowsPicksNone)
{
    list.clear();

    alice.person.turn_to(log.window);

    EXPECT_EQ(list.index(), controls::ListBox::none);
    EXPECT_EQ(log.Text1.text(), "");
}

TEST_F(LogWindow, ShowsARowInThreeParts)
{
    EXPECT_EQ(shown_of("11-15-26:03:18p:Msg from BOB\t\r\nBOB> lunch at noon\r\n---"),
              "11-15-26:03:18p\r\nMsg from BOB\t\r\nBOB> lunch at noon\r\n---\r\n");
}

TEST_F(LogWindow, CutsAMessageAtItsFirstColonAndLosesTheCharacterBehindIt)
{
    EXPECT_EQ(shown_of("11-15-26:03:18p:Msg from BOB\t\r\nBOB> note: lunch at 12:30\r\n---"),
              "11-15-26:03:18p\r\nMsg from BOB\t\r\nBOB> note\r\nlunch at 12:30\r\n---");
    EXPECT_EQ(shown_of("11-15-26:03:18p:see http://x"), "11-15-26:03:18p\r\nsee http\r\n/x");
}

TEST_F(LogWindow, ShowsNothingBehindAColonAtTheVeryEnd)
{
    EXPECT_EQ(shown_of("11-15-26:03:18p:note:"), "11-15-26:03:18p\r\nnote\r\n");
    EXPECT_EQ(shown_of("11-15-26:03:18p:note:x"), "11-15-26:03:18p\r\nnote\r\n");
}

TEST_F(LogWindow, TakesAColonRightBehindTheStampForOne)
{
    EXPECT_EQ(shown_of("11-15-26:03:18p::xyz"), "11-15-26:03:18p\r\n\r\nyz");
}

TEST_F(LogWindow, ShowsALineOfAnOldLogAsFarAsItGoes)
{
    EXPECT_EQ(shown_of("---"), "---\r\n\r\n");
    EXPECT_EQ(shown_of(""), "\r\n\r\n");
    EXPECT_EQ(shown_of("BOB> see you tomorrow"), "BOB> see you to\r\norrow\r\n");
    EXPECT_EQ(shown_of("0123456789abcdef"), "0123456789abcde\r\n\r\n");
}

TEST_F(LogWindow, SavesAndClears)
{
    list.clear();
    list.add("one");

    press(log.logsave);

    EXPECT_THAT(list.rows(), ElementsAre(logged(" Log Saved and cleared.")));
    EXPECT_EQ(alice.files.content("logs/log261115151802.txt"),
              "one\r\n" + logged(" Log Saved.") + "\r\n");
}

TEST_F(LogWindow, LeavesTheMirrorStaleUntilTheNextRow)
{
    auto const stale = alice.files.content(mirror);

    press(log.logsave);
    EXPECT_EQ(alice.files.content(mirror), stale);

    hear("BOB> one");
    EXPECT_EQ(alice.files.content(mirror), sim::lines(list.rows()));
}

TEST_F(LogWindow, BringsOldRowsTwiceAfterAKillBehindASave)
{
    hear("BOB> one");
    press(log.logsave);

    alice.restart();

    EXPECT_THAT(alice.log(), testing::Contains("BOB> one"));
}

TEST_F(LogWindow, ThatCannotSaveEndsTheProgram)
{
    alice.files.read_only = true;

    press(log.logsave);

    expect_ended("Permission denied");
}

TEST_F(LogWindow, OpensTheLogsFolder)
{
    press(log.viewlogs);

    EXPECT_THAT(alice.outside.opened, ElementsAre("/home/alice/vexlo/logs"));
}

TEST_F(LogWindow, HasNoTrapForAFolderThatNobodyOpens)
{
    alice.outside.refuses = true;

    press(log.viewlogs);

    expect_ended("File not found");
}

TEST_F(LogWindow, StartsTheLogViewerAndGoes)
{
    press(log.btnSearchOldLogs);

    EXPECT_THAT(alice.outside.started, ElementsAre("/home/alice/vexlo/vexlologviewer.exe"));
    EXPECT_FALSE(log.window.visible());
}

TEST_F(LogWindow, GoesWithoutALogViewerTooAndSaysNothing)
{
    alice.outside.refuses = true;

    press(log.btnSearchOldLogs);

    EXPECT_FALSE(log.window.visible());
    EXPECT_TRUE(alice.running());
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

TEST_F(LogWindow, IsClosed)
{
    press(log.Command2);

    EXPECT_FALSE(log.window.visible());
}

/// "Copy / Print": the selected row in a text file of the user's.
class SavedLog : public LogWindow {
protected:
    static constexpr auto path = "/home/alice/vexlomessages/vexlolog-261115151802.txt";

    SavedLog()
    {
        alice.environment.desktop["userprofile"] = "/home/alice";
        alice.files.put("/home/alice/.profile", "");
        shown_of("11-15-26:03:18p:note: one\r\ntwo");
    }

    static std::string file_with(std::string_view text)
    {
        std::string const rule = std::string(60, '-') + "\r\n";
        return "\r\nVexlo Instant Messaging\r\n\r\n" + rule +
               "Vexlo IM Log for ALICE MEYER [ROOM12\\ALICE]\r\n"
               "Saved : Sun Nov 15, 2026 3:18 pm\r\n" +
               rule + std::string(text) + "\r\n" + rule + "\r\n\r\nSaved to:\r\n" + path +
               "\r\n\r\n";
    }

    void save_in_vain()
    {
        alice.boxes.will_answer(Answer::ok);
        press(log.Command1);
        EXPECT_THAT(alice.boxes.texts(), ElementsAre("Cannot create file"));
        EXPECT_TRUE(log.window.visible());
        EXPECT_TRUE(alice.running());
    }
};

TEST_F(SavedLog, IsWrittenLineByLineAndOpened)
{
    press(log.Command1);

    EXPECT_EQ(alice.files.content(path), file_with("11-15-26:03:18p\r\nnote\r\none\r\ntwo"));
    EXPECT_THAT(alice.outside.opened, ElementsAre(path));
    EXPECT_TRUE(log.window.visible());
}

TEST_F(SavedLog, IsCopiedOverWhatTheClipboardHeld)
{
    alice.outside.clipboard = "as it was";

    press(log.Command1);

    EXPECT_EQ(alice.outside.clipboard, "11-15-26:03:18p\r\nnote\r\none\r\ntwo");
}

TEST_F(SavedLog, OfNoRowIsWrittenToo)
{
    log.Text1.set_text("");

    press(log.Command1);

    EXPECT_EQ(alice.files.content(path), file_with(""));
}

TEST_F(SavedLog, GoesByTheRuleOfTheSavedMessages)
{
    alice.environment.variables["userprofile"] = "/users/alice";
    alice.files.put("/users/alice/Documents/x", "");

    press(log.Command1);

    EXPECT_THAT(alice.outside.opened,
                ElementsAre("/users/alice/Documents/vexlomessages/vexlolog-261115151802.txt"));
}

TEST_F(SavedLog, ThatCannotBeCreatedIsToldButCopied)
{
    alice.files.read_only = true;

    save_in_vain();

    EXPECT_EQ(alice.outside.clipboard, "11-15-26:03:18p\r\nnote\r\none\r\ntwo");
    EXPECT_THAT(alice.outside.opened, IsEmpty());
}

TEST_F(SavedLog, ThatNothingOpensIsToldByTheSameBox)
{
    alice.outside.refuses = true;

    save_in_vain();

    EXPECT_TRUE(alice.files.has(path));
}

TEST_F(SavedLog, LetsRowsWaitBehindItsBoxAndWakesThem)
{
    alice.files.read_only = true;
    alice.boxes.will_answer(Answer::ok).meanwhile([&] {
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        alice.enter([&] { alice.listening.receive(datagram(bob_id, alice_id, "BOB> one")); });
    });

    press(log.Command1);

    EXPECT_EQ(frmMain.boxopen.value(), 0);
    office.settle();
    EXPECT_THAT(popups_on_show(alice), ElementsAre(0));
}

} // namespace
