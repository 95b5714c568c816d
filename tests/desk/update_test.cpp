// The update check: what it asks for, what it says, and how it ends.

#include "core/web_hosts.h"
#include "tests/desk/desk_flows.h"

namespace {

using namespace desk;
using namespace std::chrono_literals;
using flows::HasInOrder;
using flows::Lines;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr std::size_t check_for_updates = 6;
constexpr auto version_file = "/tmp/vexloimversion.txt";
constexpr auto news_file = "/tmp/vexloimwhatsnew.txt";

std::string const host = core::web_hosts().update;
std::string const version_address = host + "/vexloimversion.htm";
std::string const news_address = host + "/vexloimwhatsnew.htm";
std::string const rule(72, '-');

class UpdateCheck : public OpenDesk {
protected:
    UpdateCheck()
    {
        alice.environment.variables["TEMP"] = "/tmp";
        alice.files.put("/tmp/somebody's", "file");
    }

    /// The host serves these two texts.
    void serve(std::string_view version, std::string_view news = "")
    {
        alice.web.pages[version_address] = version;
        alice.web.pages[news_address] = news;
    }
    void check() { alice.person.choose(alice.forms().menuform.toolsmenu, check_for_updates); }
    /// The check with one box, answered so.
    void check_and_answer(platform::Answer answer)
    {
        alice.boxes.will_answer(answer);
        check();
    }
    /// The check that is followed by the end of the program.
    void check_and_download()
    {
        alice.boxes.will_answer(platform::Answer::yes);
        alice.boxes.will_answer(platform::Answer::ok);
        check();
    }
    [[nodiscard]] sim::ScriptedBoxes::Shown const& box() const { return alice.boxes.shown().at(0); }
    /// The program runs on as if nothing had been.
    void expect_no_trace() const
    {
        EXPECT_TRUE(alice.running());
        EXPECT_FALSE(alice.files.has(version_file));
        EXPECT_FALSE(alice.files.has(news_file));
        EXPECT_THAT(alice.outside.addresses, IsEmpty());
    }
    /// A message for Alice.
    void message_comes()
    {
        office.segment.inject_to("ROOM12",
                                 flows::message(flows::bob_id, flows::alice_id, "BOB> Lunch?"));
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

// The fetch

TEST_F(UpdateCheck, FetchesBothTextsThroughFilesThatItRemoves)
{
    serve("1.5.3", "Nothing");
    frmMain.window.busy.attach([this] { alice.journal.note("hourglass"); });
    frmMain.window.idle.attach([this] { alice.journal.note("pointer"); });
    alice.journal.switch_on();

    check_and_answer(platform::Answer::ok);

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("hourglass", "forget " + version_address, "download " + version_address,
                            "write /tmp/vexloimversion.txt", "read /tmp/vexloimversion.txt",
                            "remove /tmp/vexloimversion.txt", "forget " + news_address,
                            "download " + news_address, "write /tmp/vexloimwhatsnew.txt",
                            "read /tmp/vexloimwhatsnew.txt", "remove /tmp/vexloimwhatsnew.txt",
                            "pointer", StartsWith("box Vexlo IM v")));
    EXPECT_EQ(frmMain.whatsnew, "Nothing");
    expect_no_trace();
}

TEST_F(UpdateCheck, LooksForTheTemporaryFolderAfreshEachTime)
{
    serve("1.5.3");
    check_and_answer(platform::Answer::ok);
    alice.environment.variables["TEMP"] = "/var/tmp";
    alice.files.put("/var/tmp/somebody's", "file");
    alice.journal.switch_on();

    check_and_answer(platform::Answer::ok);

    EXPECT_THAT(alice.journal.lines(), Contains("write /var/tmp/vexloimversion.txt"));
}

TEST_F(UpdateCheck, SaysThatNobodyAnswersAndAsksForNoNews)
{
    frmMain.window.busy.attach([this] { alice.journal.note("hourglass"); });
    frmMain.window.idle.attach([this] { alice.journal.note("pointer"); });
    alice.journal.switch_on();

    check_and_answer(platform::Answer::ok);

    auto const told = "Unable to connect to Server at this Time.\nTry again later.";
    EXPECT_EQ(box().text, told);
    EXPECT_EQ(box().title, "Vexlo Instant Messaging");
    EXPECT_EQ(box().buttons, platform::Buttons::ok);
    EXPECT_THAT(alice.journal.lines(),
                ElementsAre("hourglass", "forget " + version_address, "download " + version_address,
                            "pointer", "box " + std::string(told)));
    expect_no_trace();
}

TEST_F(UpdateCheck, CountsATextThatCannotBeStoredAsNoAnswer)
{
    serve("1.5.4");
    alice.environment.variables["TEMP"] = "/nowhere";

    check_and_answer(platform::Answer::ok);

    EXPECT_THAT(box().text, StartsWith("Unable to connect"));
    EXPECT_THAT(alice.web.asked, ElementsAre(version_address));
}

TEST_F(UpdateCheck, TakesTheWordsOfAFailureFromTheHostForOne)
{
    serve("Unable to Connect/err0");

    check_and_answer(platform::Answer::ok);

    EXPECT_THAT(box().text, StartsWith("Unable to connect"));
}

TEST_F(UpdateCheck, WithoutAWhatsNewFileEndsTheProgramWithItsReport)
{
    alice.web.pages[version_address] = "1.5.3";
    bool pointer = false;
    frmMain.window.idle.attach([&] { pointer = true; });

    check();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "File not found");
    EXPECT_TRUE(pointer);
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_FALSE(alice.files.has(version_file));
}

TEST_F(UpdateCheck, OfATextWithoutTwoPointsEndsTheProgramWithItsReport)
{
    for (auto const* const text : {"1.5", "", "~1.5.4", "<html><title>No such page</title>"}) {
        serve(text);

        check();

        EXPECT_EQ(alice.status(), 1) << text;
        EXPECT_EQ(alice.report(), "Invalid procedure call or argument") << text;
        alice.start();
        office.settle();
    }
}

TEST_F(UpdateCheck, ReadsAnErrorPageThatComesAsAGoodOne)
{
    serve("<html>No such page. Write to web.master.</html>");

    check_and_answer(platform::Answer::ok);

    EXPECT_THAT(box().text, HasSubstr("This is the latest Version.")); // It counts as 0.0.0.
}

// An old version

TEST_F(UpdateCheck, SaysThatAnEqualVersionIsTheLatest)
{
    serve("1.5.3", "Old news");

    check_and_answer(platform::Answer::ok);

    EXPECT_EQ(box().text, "Vexlo IM v1.5.3\nThis is the latest Version.");
    EXPECT_EQ(box().title, "Vexlo IM Updater");
    EXPECT_EQ(box().buttons, platform::Buttons::ok);
    expect_no_trace();
}

TEST_F(UpdateCheck, SaysThatTheOwnVersionIsTheLatestWhenTheHostHasAnOlderOne)
{
    for (auto const* const older : {"1.5.2", "1.4.999", "0.9.9~soon", "1.5.3~ 2.0.0"}) {
        serve(older);
        check_and_answer(platform::Answer::ok);
        EXPECT_EQ(alice.boxes.texts().back(), "Vexlo IM v1.5.3\nThis is the latest Version.")
            << older;
    }
}

// A new version

TEST_F(UpdateCheck, OffersANewerVersionWithItsNews)
{
    serve("1.5.4", "Faster.~Quieter.");

    check_and_answer(platform::Answer::no);

    EXPECT_EQ(box().text, "This is version 1.5.3\n"
                          "An UPDATED version (1.5.4) is available!\n\n" +
                              rule +
                              "\n"
                              "What's NEW in version 1.5.4?\n\n"
                              "Faster.\nQuieter.\n" +
                              rule +
                              "\n"
                              "\n(Note: This version will close before installing a newer version)"
                              "\n\nWould you like to download now?");
    EXPECT_EQ(box().title, "Vexlo Instant Messaging Updater");
    EXPECT_EQ(box().buttons, platform::Buttons::yes_no);
}

TEST_F(UpdateCheck, OffersANewerVersionWithoutABlockOfEmptyNews)
{
    serve("1.6.0");

    check_and_answer(platform::Answer::no);

    EXPECT_EQ(box().text, "This is version 1.5.3\n"
                          "An UPDATED version (1.6.0) is available!\n\n"
                          "\n(Note: This version will close before installing a newer version)"
                          "\n\nWould you like to download now?");
}

TEST_F(UpdateCheck, DropsEverythingFromTheFirstWaveOn)
{
    serve("1.5.4~beta~2.0.0", "News");

    check_and_answer(platform::Answer::no);

    EXPECT_THAT(box().text, HasSubstr("(1.5.4) is available!"));
    EXPECT_THAT(box().text, HasSubstr("What's NEW in version 1.5.4?\n"));
    EXPECT_THAT(box().text, Not(HasSubstr("beta")));
}

TEST_F(UpdateCheck, QuotesTheVersionAsItStandsLineEndIncluded)
{
    serve("1.5.4\r\n", "News\r\n");

    check_and_answer(platform::Answer::no);

    EXPECT_THAT(box().text, HasSubstr("An UPDATED version (1.5.4\r\n) is available!\n\n"));
    EXPECT_THAT(box().text, HasSubstr("What's NEW in version 1.5.4\r\n?\n\nNews\r\n\n"));
}

TEST_F(UpdateCheck, OfANewVersionLeavesNoTraceAfterNo)
{
    serve("1.5.4", "News");

    check_and_answer(platform::Answer::no);

    expect_no_trace();
    EXPECT_FALSE(frmMain.boxopen.on());
    EXPECT_EQ(alice.boxes.shown().size(), 1U);
    EXPECT_THAT(sent_by(alice), IsEmpty());
}

// The way out

TEST_F(UpdateCheck, HandsTheInstallerOverBehindAnyAnswerButNo)
{
    serve("1.5.4");
    alice.boxes.will_answer(platform::Answer::cancel);
    alice.boxes.will_answer(platform::Answer::ok);

    check();

    EXPECT_THAT(alice.outside.addresses, ElementsAre(host + "/vexlo_setup.exe"));
    EXPECT_FALSE(alice.running());
}

TEST_F(UpdateCheck, HandsTheInstallerOverAndEndsInItsOrder)
{
    serve("1.5.4");
    alice.forms().menuform.unloadmecommand.attach([this] { alice.journal.note("unload"); });
    frmMain.window.idle.attach([this] { alice.journal.clear(); });
    alice.journal.switch_on();

    check_and_download();

    EXPECT_THAT(alice.journal.lines(),
                ElementsAre(StartsWith("box This is version"), "box This program will close now.",
                            "web " + host + "/vexlo_setup.exe", "close 4111", "close 4112",
                            "write users.txt", "write settings.txt", "unload", "end 0"));
    EXPECT_EQ(alice.boxes.shown().at(1).title, "Vexlo Instant Messaging");
    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.report(), "");
}

TEST_F(UpdateCheck, EndsWithoutASignOffWithoutTheIconAndWithItsLogWhereItIs)
{
    serve("1.5.4");

    check_and_download();
    office.settle();

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_THAT(bob.frmMain().allusers.rows(), Contains("Alice Meyer"));
    EXPECT_FALSE(alice.tray_icon.shown);
    EXPECT_TRUE(alice.files.has("logs/logtemp.txt"));
}

TEST_F(UpdateCheck, SavesUsersAndOptionsBeforeItsEnd)
{
    serve("1.5.4");
    alice.settings().myown.set(1);
    alice.files.erase("users.txt");
    alice.processes.running = {{.id = 7, .executable = "vexlowatchdog.exe"}};

    check_and_download();

    EXPECT_THAT(alice.files.content("settings.txt"), HasSubstr("[SHOWOWN             ]=1\r\n"));
    EXPECT_THAT(alice.files.content("users.txt"), HasSubstr("[ROOM07\\BOB]=BOB\r\n"));
    EXPECT_THAT(alice.processes.killed, ElementsAre(7)); // One whole save, and no second one.
}

TEST_F(UpdateCheck, ThatCannotSaveOnItsWayOutEndsWithTheReport)
{
    serve("1.5.4");
    alice.files.unwritable.insert("users.txt");

    check_and_download();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "Permission denied");
}

// Its boxes and the queue

TEST_F(UpdateCheck, KeepsMessagesBehindItsBoxesAndShowsThemAfterwards)
{
    for (auto const* const version : {"", "1.5.3", "1.5.4"}) {
        if (std::string_view(version).empty()) {
            alice.web.pages.clear();
        } else {
            serve(version);
        }
        bool waited = false;
        alice.boxes.will_answer(platform::Answer::no).after(1s).meanwhile([&] {
            message_comes();
            office.scheduler.after(900ms, [&] { waited = frmMain.cue.size() == 1; });
        });

        check();

        EXPECT_TRUE(waited) << version;
        EXPECT_FALSE(alice.popup(0).window.visible()) << version;
        EXPECT_TRUE(frmMain.Timer3.enabled()) << version;
        office.settle();
        EXPECT_TRUE(alice.popup(0).window.visible()) << version;
        alice.person.click(frmMain.dissmissall);
    }
}

TEST_F(UpdateCheck, KeepsMessagesBehindItsLastBoxToo)
{
    serve("1.5.4");
    bool shown = false;
    alice.boxes.will_answer(platform::Answer::yes).meanwhile([this] { message_comes(); }).after(1s);
    alice.boxes.will_answer(platform::Answer::ok).after(1s).meanwhile([&] {
        office.scheduler.after(900ms, [&] { shown = alice.popup(0).window.visible(); });
    });

    check();

    EXPECT_FALSE(shown);
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(UpdateCheck, KeepsMessagesWhileItFetches)
{
    serve("1.5.3");
    bool flagged = false;
    frmMain.window.busy.attach([&] { flagged = frmMain.boxopen.on(); });

    check_and_answer(platform::Answer::ok);

    EXPECT_TRUE(flagged);
    EXPECT_FALSE(frmMain.boxopen.on());
}

TEST_F(UpdateCheck, IsNeverDoneUnasked)
{
    serve("1.5.4");

    office.run_for(2h);

    EXPECT_THAT(alice.web.asked, IsEmpty());
}

} // namespace
