// The programs that stand around the messenger: the watchdog that each save stops, the companions
// that buttons start, and the desktop's own openers.

#include "core/web_hosts.h"
#include "tests/desk/settings_desk.h"

namespace {

using namespace desk;
using testing::ElementsAre;
using testing::IsEmpty;

// The watchdog

class Watchdog : public SettingsDesk {
protected:
    Watchdog()
    {
        alice.processes.running = {{.id = 11, .executable = "vexlowatchdog.exe"},
                                   {.id = 12, .executable = "firefox"}};
    }
};

TEST_F(Watchdog, IsStoppedByASave)
{
    save();

    EXPECT_THAT(alice.processes.killed, ElementsAre(11));
}

TEST_F(Watchdog, IsStoppedWithItsBoxTickedToo)
{
    tick(settings.watchdog);

    save();

    EXPECT_THAT(alice.processes.killed, ElementsAre(11));
}

TEST_F(Watchdog, IsStoppedInEachCopy)
{
    alice.processes.running.push_back({.id = 13, .executable = "vexlowatchdog.exe"});

    save();

    EXPECT_THAT(alice.processes.killed, ElementsAre(11, 13));
}

TEST_F(Watchdog, IsKnownByTheTailOfItsNameInAnyCase)
{
    alice.processes.running = {{.id = 1, .executable = "VexloWatchDog.EXE"},
                               {.id = 2, .executable = "my-vexlowatchdog.exe"},
                               {.id = 3, .executable = "vexlowatchdog.exe.old"},
                               {.id = 4, .executable = "watchdog.exe"},
                               {.id = 5, .executable = ""}};

    save();

    EXPECT_THAT(alice.processes.killed, ElementsAre(1, 2));
}

TEST_F(Watchdog, IsStoppedByAnyOtherSaveOfTheSettings)
{
    alice.boxes.will_enter("5111");
    press(settings.Command2);
    EXPECT_THAT(alice.processes.killed, ElementsAre(11));

    alice.processes.running = {{.id = 14, .executable = "vexlowatchdog.exe"}};
    alice.boxes.will_enter("Alice");
    press(settings.Command1);
    EXPECT_THAT(alice.processes.killed, ElementsAre(11, 14));

    alice.processes.running = {{.id = 15, .executable = "vexlowatchdog.exe"}};
    cancel();
    alice.person.leave();
    EXPECT_THAT(alice.processes.killed, ElementsAre(11, 14, 15));
}

TEST_F(Watchdog, IsLeftAloneByALoad)
{
    cancel();

    EXPECT_THAT(alice.processes.killed, IsEmpty());
}

TEST_F(Watchdog, IsStoppedAsTheLastStepOfTheSave)
{
    alice.frmMain().stopwatchdog.attach([this] { alice.journal.note("stop"); });
    alice.journal.switch_on();

    alice.enter([this] { frmMain.saveallsettings.run(); });

    EXPECT_THAT(alice.journal.lines(), ElementsAre("write settings.txt", "stop"));
}

TEST_F(Watchdog, ThatIsMissingIsNotMissed)
{
    alice.processes.running.clear();

    save();

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(alice.processes.killed, IsEmpty());
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

class FirstRun : public Desk {};

TEST_F(FirstRun, NamesTheWatchdogInItsFileAndNeverStartsIt)
{
    alice.files.erase("settings.txt");
    alice.boxes.will_enter("Alice");

    start_alice(); // The first save, which drops that line, comes with the first answer.

    EXPECT_THAT(alice.files.content("settings.txt"),
                testing::HasSubstr("[USEWATCHDOG         ]=1\r\n"));
    EXPECT_EQ(alice.settings().watchdog.value(), 0);
    EXPECT_THAT(alice.outside.started, IsEmpty());
}

// Companions

class Companion : public OpenDesk {
protected:
    forms::FrmMain& frmMain = alice.frmMain();
    forms::Log& log = alice.forms().log;
    forms::HistoryFrm& history = alice.forms().historyfrm;
};

TEST_F(Companion, ForChatIsStartedFromTheMainWindow)
{
    EXPECT_EQ(frmMain.chatbtn.caption, "Chat");

    alice.person.click(frmMain.chatbtn);

    EXPECT_THAT(alice.outside.started, ElementsAre("/home/alice/vexlo/vexlochat.exe"));
}

TEST_F(Companion, ForChatIsFatalWhereItIsMissing)
{
    alice.outside.refuses = true;

    alice.person.click(frmMain.chatbtn);

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "File not found");
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

TEST_F(Companion, ForOldLogsIsStartedFromTheLogWindowWhichHides)
{
    alice.enter([this] { log.window.show(); });

    alice.person.click(log.window, log.btnSearchOldLogs);

    EXPECT_EQ(log.btnSearchOldLogs.caption, "Search Old Logs");
    EXPECT_THAT(alice.outside.started, ElementsAre("/home/alice/vexlo/vexlologviewer.exe"));
    EXPECT_FALSE(log.window.visible());
}

TEST_F(Companion, ForOldLogsIsNotMissedAndTheLogWindowHidesAllTheSame)
{
    alice.outside.refuses = true;
    alice.enter([this] { log.window.show(); });

    alice.person.click(log.window, log.btnSearchOldLogs);

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_FALSE(log.window.visible());
}

TEST_F(Companion, ForOldLogsIsStartedFromTheHistoryWindowWhichStays)
{
    alice.enter([this] { alice.forms().menuform.showhistory.run(); });

    alice.person.click(history.window, history.searchlogs);
    EXPECT_THAT(alice.outside.started, ElementsAre("/home/alice/vexlo/vexlologviewer.exe"));

    alice.outside.refuses = true;
    alice.person.click(history.window, history.searchlogs);
    EXPECT_TRUE(alice.running());
    EXPECT_TRUE(history.window.visible());
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

// The desktop's openers

TEST_F(Companion, OpensTheFolderOfTheLogs)
{
    alice.enter([this] { log.window.show(); });

    alice.person.click(log.window, log.viewlogs);

    EXPECT_EQ(log.viewlogs.caption, "Open Log Dir");
    EXPECT_THAT(alice.outside.opened, ElementsAre("/home/alice/vexlo/logs"));
}

TEST_F(Companion, IsFatalWhereNothingOpensTheFolderOfTheLogs)
{
    alice.outside.refuses = true;
    alice.enter([this] { log.window.show(); });

    alice.person.click(log.window, log.viewlogs);

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "File not found");
}

TEST_F(Companion, OpensTheHelpThatShipsWithTheProgram)
{
    constexpr std::size_t help = 11;

    alice.person.choose(alice.forms().menuform.toolsmenu, help);

    EXPECT_EQ(alice.outside.helps, 1);
    EXPECT_THAT(alice.outside.addresses, IsEmpty());
}

TEST_F(Companion, OpensTheThreePagesOfTheWeb)
{
    auto const hosts = core::web_hosts();
    constexpr std::size_t on_line_help = 12;
    EXPECT_EQ(frmMain.Label3.tool_tip, "Click to visit web site");
    EXPECT_EQ(frmMain.Label4.tool_tip, "Click to visit web site");

    alice.person.click(frmMain.helpbtn);
    alice.enter([this] { frmMain.Label3.clicked.run(); });
    alice.enter([this] { frmMain.Label4.clicked.run(); });
    alice.person.choose(alice.forms().menuform.toolsmenu, on_line_help);

    EXPECT_THAT(alice.outside.addresses,
                ElementsAre(hosts.web + "/help", hosts.company + "/software.shtml", hosts.web + "/",
                            hosts.web + "/help"));
}

TEST_F(Companion, KnowsTheAddressOfTheInstallerFromItsStart)
{
    EXPECT_EQ(frmMain.updateurl, core::web_hosts().update + "/vexlo_setup.exe");
}

} // namespace
