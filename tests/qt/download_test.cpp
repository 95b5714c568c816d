// Downloads from a real host, and the whole update check over them.

#include "desktop/updates.h"
#include "qt/desk_files.h"
#include "qt/desk_web.h"
#include "tests/qt/local_host.h"
#include "tests/unit/fakes.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Disk {
    QTemporaryDir folder;
    qt::Codec codec{1252};
    qt::DeskFiles files{codec, folder.path()};
    std::string const path = folder.path().toStdString();
};

class Download : public testing::Test {
protected:
    bool download(char const* page = "/page.htm")
    {
        return web.download(host.address() + page, target);
    }
    void expect_nothing_saved() const { EXPECT_FALSE(disk.files.exists(target)); }

    Disk disk;
    desk::LocalHost host;
    qt::DeskWeb web{disk.codec, disk.files};
    std::string const target = disk.path + "/page.txt";
};

TEST_F(Download, SavesEveryByte)
{
    QByteArray const body("1.5.4\r\n\0~\xE9", 10);
    host.will_answer("200 OK", body);

    EXPECT_TRUE(download("/vexloimversion.htm"));

    EXPECT_EQ(disk.files.read(target), std::string(body.constData(), 10));
    EXPECT_THAT(host.requests(), ElementsAre(QByteArray("GET /vexloimversion.htm HTTP/1.1")));
}

TEST_F(Download, SavesAnEmptyText)
{
    host.will_answer("200 OK", "");

    EXPECT_TRUE(download());

    EXPECT_EQ(disk.files.read(target), "");
}

TEST_F(Download, ReplacesAnOlderFileWhole)
{
    disk.files.write(target, "something longer than the new text");
    host.will_answer("200 OK", "short");

    EXPECT_TRUE(download());

    EXPECT_EQ(disk.files.read(target), "short");
}

TEST_F(Download, SavesAnErrorPageThatComesAsAGoodOne)
{
    host.will_answer("200 OK", "<html>No such page</html>");

    EXPECT_TRUE(download());

    EXPECT_EQ(disk.files.read(target), "<html>No such page</html>");
}

TEST_F(Download, TakesTheEndOfTheLineForTheEndOfATextWithoutALength)
{
    host.will_send("HTTP/1.0 200 OK\r\n\r\n1.5.4");

    EXPECT_TRUE(download());

    EXPECT_EQ(disk.files.read(target), "1.5.4");
}

TEST_F(Download, FollowsARedirection)
{
    host.will_send("HTTP/1.1 302 Found\r\nLocation: /moved.htm\r\nContent-Length: 0\r\n"
                   "Connection: close\r\n\r\n");
    host.will_answer("200 OK", "moved");

    EXPECT_TRUE(download());

    EXPECT_EQ(disk.files.read(target), "moved");
    EXPECT_EQ(host.requests().size(), 2);
}

TEST_F(Download, AsksTheHostEachTime)
{
    host.will_send("HTTP/1.1 200 OK\r\nCache-Control: max-age=9999\r\nContent-Length: 3\r\n"
                   "Connection: close\r\n\r\nold");
    host.will_answer("200 OK", "new");

    EXPECT_TRUE(download());
    web.forget(host.address() + "/page.htm");
    EXPECT_TRUE(download());

    EXPECT_EQ(disk.files.read(target), "new");
}

TEST_F(Download, FailsWhereTheHostHasNoSuchPage)
{
    for (auto const* const status : {"404 Not Found", "403 Forbidden", "500 Internal Error"}) {
        host.will_answer(status, "<html>1.5.4</html>");
        EXPECT_FALSE(download()) << status;
        expect_nothing_saved();
    }
}

TEST_F(Download, FailsWhenTheLineIsCutInTheText)
{
    host.will_send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n1.5.4");

    EXPECT_FALSE(download());

    expect_nothing_saved();
}

TEST_F(Download, SavesATextThatComesInPieces)
{
    host.will_send("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                   "3\r\n1.5\r\n2\r\n.4\r\n0\r\n\r\n");

    EXPECT_TRUE(download());

    EXPECT_EQ(disk.files.read(target), "1.5.4");
}

TEST_F(Download, FailsWhenTheLineIsCutInTheHead)
{
    for (auto const* const bytes : {"", "HTTP/1.1 200 OK\r\nContent-"}) {
        host.will_send(bytes);
        EXPECT_FALSE(download()) << bytes;
        expect_nothing_saved();
    }
}

TEST_F(Download, FailsWhereNobodyAnswers)
{
    host.go_away();

    EXPECT_FALSE(download());

    expect_nothing_saved();
}

TEST_F(Download, FailsForAHostThatNobodyKnows)
{
    web.patience = 5s;

    EXPECT_FALSE(web.download("http://no-such-host.invalid/page.htm", target));

    expect_nothing_saved();
}

TEST_F(Download, FailsForAnAddressThatIsNone)
{
    for (auto const* const address : {"", "http://", "nonsense", "gopher://127.0.0.1/x"}) {
        EXPECT_FALSE(web.download(address, target)) << address;
        expect_nothing_saved();
    }
}

TEST_F(Download, FailsWhenTheHostIsSilentForTooLong)
{
    web.patience = 100ms;
    host.will_be_silent();

    EXPECT_FALSE(download());

    expect_nothing_saved();
    EXPECT_EQ(host.requests().size(), 1);
}

TEST_F(Download, FailsWhenItCannotBeSaved)
{
    host.will_answer("200 OK", "1.5.4");

    EXPECT_FALSE(web.download(host.address() + "/page.htm", disk.path + "/no/such/folder.txt"));
}

TEST_F(Download, LetsTimersGoOn)
{
    bool ticked = false;
    QTimer::singleShot(0, [&] { ticked = true; });
    host.will_answer("200 OK", "1.5.4");

    EXPECT_TRUE(download());

    EXPECT_TRUE(ticked);
}

// The whole check

struct Ended {
    int status;
};

class EndingProcess : public platform::Process {
public:
    [[nodiscard]] bool other_copy_runs() override { return false; }
    [[nodiscard]] std::string command_line() const override { return {}; }
    [[nodiscard]] std::string program_folder() const override { return {}; }
    void store_setting(std::string_view, std::string_view, std::string_view) override {}
    [[noreturn]] void end(int status) override { throw Ended{status}; }
};

class Browser : public platform::Outside {
public:
    void open_text(std::string_view) override {}
    void open_folder(std::string_view) override {}
    void open_help() override {}
    void open_web(std::string_view address) override { opened.emplace_back(address); }
    void copy(std::string_view) override {}
    void start(std::string_view) override {}

    std::vector<std::string> opened;
};

/// Boxes whose questions are answered so.
class AnsweredBoxes : public unit::ScriptedBoxes {
public:
    platform::Answer show(platform::MessageBox const& box) override
    {
        unit::ScriptedBoxes::show(box);
        return answer;
    }

    platform::Answer answer = platform::Answer::no;
};

class CheckOverTheNet : public testing::Test {
protected:
    CheckOverTheNet()
    {
        environment.values["TEMP"] = disk.path;
        forms.frmMain.updateurl = hosts.update + "/vexlo_setup.exe";
    }

    /// What the box says that the check ends with.
    std::string told()
    {
        check.updates();
        return boxes.shown.empty() ? "" : boxes.shown.back().text;
    }
    [[nodiscard]] QStringList left_over() const
    {
        return QDir(disk.folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    Disk disk;
    desk::LocalHost host;
    qt::DeskWeb web{disk.codec, disk.files};
    desktop::WebHosts hosts{.update = host.address(), .web = "", .company = ""};
    forms::Forms forms{unit::western};
    AnsweredBoxes boxes;
    unit::FixedClock clock;
    unit::FakeEnvironment environment;
    unit::IdleSocket listening;
    unit::IdleSocket sending;
    EndingProcess process;
    Browser browser;
    network::Transport transport{forms.frmMain, listening, sending};
    network::Trouble trouble{{.frmMain = forms.frmMain,
                              .log = forms.log,
                              .menuform = forms.menuform,
                              .transport = transport,
                              .boxes = boxes,
                              .clock = clock,
                              .process = process}};
    desktop::Updates check{{.frmMain = forms.frmMain,
                            .transport = transport,
                            .trouble = trouble,
                            .boxes = boxes,
                            .environment = environment,
                            .files = disk.files,
                            .outside = browser,
                            .web = web,
                            .hosts = hosts},
                           {.major = 1, .minor = 5, .revision = 3}};
};

constexpr auto latest = "Vexlo IM v1.5.3\nThis is the latest Version.";
constexpr auto unable = "Unable to connect to Server at this Time.\nTry again later.";

TEST_F(CheckOverTheNet, FindsTheLatestVersion)
{
    host.will_answer("200 OK", "1.5.3\r\n");
    host.will_answer("200 OK", "Nothing new");

    EXPECT_EQ(told(), latest);

    EXPECT_THAT(host.requests(), ElementsAre(QByteArray("GET /vexloimversion.htm HTTP/1.1"),
                                             QByteArray("GET /vexloimwhatsnew.htm HTTP/1.1")));
    EXPECT_THAT(left_over(), IsEmpty());
}

TEST_F(CheckOverTheNet, FindsANewerVersionWithItsNewsAndTakesNo)
{
    host.will_answer("200 OK", "1.5.4~beta");
    host.will_answer("200 OK", "Faster~Quieter");

    EXPECT_THAT(told(), HasSubstr("An UPDATED version (1.5.4) is available!\n\n"));

    EXPECT_THAT(boxes.shown.back().text, HasSubstr("\n\nFaster\nQuieter\n---"));
    EXPECT_THAT(browser.opened, IsEmpty());
    EXPECT_THAT(left_over(), IsEmpty());
}

TEST_F(CheckOverTheNet, HandsTheInstallersAddressToTheBrowserAndEnds)
{
    host.will_answer("200 OK", "1.5.4");
    host.will_answer("200 OK", "");
    boxes.answer = platform::Answer::yes;

    EXPECT_THROW(check.updates(), Ended);

    EXPECT_EQ(boxes.shown.back().text, "This program will close now.");
    EXPECT_THAT(browser.opened, ElementsAre(host.address() + "/vexlo_setup.exe"));
}

TEST_F(CheckOverTheNet, TellsWhateverIsWrongWithTheHostInTheSameWords)
{
    host.will_answer("404 Not Found", "1.5.4");
    EXPECT_EQ(told(), unable);
    host.will_send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n1.5.4");
    EXPECT_EQ(told(), unable);
    host.go_away();
    EXPECT_EQ(told(), unable);

    EXPECT_EQ(host.requests().size(), 2); // Nobody asked for the news.
    EXPECT_THAT(left_over(), IsEmpty());
}

TEST_F(CheckOverTheNet, FailsWithoutTheNews)
{
    host.will_answer("200 OK", "1.5.4");
    host.will_answer("404 Not Found", "no news");

    EXPECT_THROW(check.updates(), text::Failure);

    EXPECT_THAT(boxes.shown, IsEmpty());
    EXPECT_THAT(left_over(), IsEmpty());
}

TEST_F(CheckOverTheNet, FailsOnAnErrorPageThatComesAsAGoodOne)
{
    host.will_answer("200 OK", "<html>No such page</html>");
    host.will_answer("200 OK", "<html>No such page</html>");

    EXPECT_THROW(check.updates(), text::Failure);

    EXPECT_THAT(left_over(), IsEmpty());
}

} // namespace
