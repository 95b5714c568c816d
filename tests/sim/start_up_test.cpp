#include "stories.h"

#include <map>

namespace {

using namespace flows;
using namespace std::chrono_literals;
using platform::Answer;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class StartUp : public AliceAlone {};

TEST_F(StartUp, ASecondCopySaysSoAndTouchesNothing)
{
    alice.prepare("Alice Meyer");
    auto const files = alice.files.names();
    alice.process.other_copy = true;
    alice.boxes.will_answer(Answer::ok);
    alice.journal.switch_on();

    alice.start();

    std::string const words = "Vexlo Instant Messaging v1.5.3\r\n     is already running.";
    EXPECT_THAT(alice.journal.lines(), ElementsAre("box " + words, "end 0"));
    EXPECT_EQ(alice.boxes.shown().at(0).title, "Vexlo Instant Messaging");
    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.files.names(), files);
    EXPECT_THAT(alice.process.settings, IsEmpty());
}

TEST_F(StartUp, EveryStartStoresThePathOfTheProgram)
{
    std::map<std::string, std::string> const stored{
        {"NORVAN/Path", "/home/alice/vexlo/vexloim.exe"}};
    start();
    EXPECT_EQ(alice.process.settings, stored);

    alice.process.settings.clear();
    alice.restart();

    EXPECT_EQ(alice.process.settings, stored);
}

TEST_F(StartUp, EverythingComesInItsOrder)
{
    auto& forms = alice.forms();
    auto const note = [this](std::string const& line) {
        return [this, line] { alice.journal.note(line); };
    };
    forms.menuform.trayadd.attach(note("tray"));
    forms.settings.loadbuttons.attach(note("buttons"));
    forms.frmMain.adoptoldshortcut.attach(note("old shortcut"));
    forms.groups.loadgroups.attach(note("groups"));
    forms.historyfrm.loadbtn.attach(note("history"));
    alice.prepare("Alice", {.users = {"[ROOM12\\ALICE]=ALICE"}});
    alice.files.put("logs/logtemp.txt", "left over\r\n");
    alice.journal.switch_on();

    alice.start();

    std::string const hello = "send " + announcement(alice_id, "ALICE");
    EXPECT_THAT(alice.journal.lines(),
                HasInOrder(Lines{"setting NORVAN/Path", "tray", "buttons", "read logs/logtemp.txt",
                                 "remove logs/logtemp.txt", "read settings.txt", "read users.txt",
                                 "old shortcut", "groups", "bind 4111", "bind 4112",
                                 "write logs/logtemp.txt", hello, hello, "history"}));
    EXPECT_EQ(forms.frmMain.bindingsocket, "DiscoveryPort1");
}

TEST_F(StartUp, TheLogsFolderIsMadeWhenItIsMissing)
{
    alice.journal.switch_on();
    start();

    EXPECT_TRUE(alice.files.has_folder("logs"));
    EXPECT_THAT(alice.journal.lines(), Contains("make logs"));
}

TEST_F(StartUp, ALogsFolderThatIsThereIsNotMadeAgain)
{
    alice.files.put("logs/old.txt", "");
    alice.journal.switch_on();
    start();

    EXPECT_THAT(alice.journal.lines(), Not(Contains("make logs")));
}

TEST_F(StartUp, ALeftOverLogGoesBehindALineThatSaysTheOpposite)
{
    alice.files.put("logs/logtemp.txt", "first line\r\n\r\nsecond line\r\n");

    start();

    EXPECT_THAT(alice.log(),
                ElementsAre(logged("Vexlo IM shutdown correctly.\t\r\n---"), "first line", "",
                            "second line", logged("Vexlo IM.\t\r\n---")));
}

TEST_F(StartUp, WithoutALeftOverLogTheFirstRowIsThatOfTheStart)
{
    start();

    EXPECT_THAT(alice.log(), ElementsAre(logged("Vexlo IM.\t\r\n---")));
    EXPECT_EQ(alice.files.content("logs/logtemp.txt"), logged("Vexlo IM.\t\r\n---\r\n"));
}

TEST_F(StartUp, EveryStartAnnouncesItselfTwice)
{
    start({.users = known_users});

    EXPECT_THAT(office.segment.texts(), ElementsAre(announcement(alice_id, "ALICE MEYER"),
                                                    announcement(alice_id, "ALICE MEYER")));
}

TEST_F(StartUp, ASecondRoundIsLeftOutOnlyWhenSomebodyIsOnTheList)
{
    int rounds = 0;
    alice.frmMain().getusers.attach([&] {
        ++rounds;
        alice.frmMain().allusers.add("Bob");
    });

    start();

    EXPECT_EQ(rounds, 1);
}

TEST_F(StartUp, ThereIsNoThirdRound)
{
    int rounds = 0;
    alice.frmMain().getusers.attach([&] { ++rounds; });

    start();
    office.run_for(1min);

    EXPECT_EQ(rounds, 2);
}

TEST_F(StartUp, NothingIsHandledWhileARoundGoesOut)
{
    std::vector<int> flags;
    alice.frmMain().getusers.attach([&] { flags.push_back(alice.frmMain().boxopen.value()); });

    start();

    EXPECT_THAT(flags, ElementsAre(1, 1));
    EXPECT_EQ(alice.frmMain().boxopen.value(), 0);
}

TEST_F(StartUp, OnlyTheWatchRunsInTheEnd)
{
    start();

    EXPECT_TRUE(alice.frmMain().Timer1.enabled());
    EXPECT_FALSE(alice.frmMain().Timer2.enabled());
    EXPECT_FALSE(alice.frmMain().Timer3.enabled());
}

TEST_F(StartUp, TheCountOfTheUserCheckStartsAtNought)
{
    alice.frmMain().usercount = "17";
    alice.frmMain().getusers.attach([] {});

    start();

    EXPECT_EQ(alice.frmMain().usercount, "0");
}

TEST_F(StartUp, ThePortsOfTheOptionsStandSwappedUntilTheirFirstRefresh)
{
    start();

    EXPECT_EQ(alice.settings().portlisten.caption(), "4112");
    EXPECT_EQ(alice.settings().portsend.caption(), "4111");
}

TEST_F(StartUp, KnowsWhereTheInstallerOfAnUpdateIs)
{
    start();

    EXPECT_THAT(alice.frmMain().updateurl, testing::EndsWith("/vexlo_setup.exe"));
}

TEST_F(StartUp, ARowThatWaitsAtTheEndWakesTheQueue)
{
    alice.forms().historyfrm.loadbtn.attach([this] { alice.frmMain().cue.push_back("row"); });

    start();

    EXPECT_TRUE(alice.frmMain().Timer3.enabled());
}

} // namespace
