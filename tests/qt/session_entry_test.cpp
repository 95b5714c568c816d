#include "qt/desk_session.h"
#include "qt/exec_line.h"
#include "tests/qt/desk.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <optional>

namespace {

using desk::words;

constexpr char const* name = "Vexlo IM AutoStart";

QByteArray content_of(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void put(QString const& path, QByteArray const& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// A home of its own, with a program folder of any name in it.
class SessionEntry : public testing::Test {
protected:
    SessionEntry()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(words("config"))));
    }
    ~SessionEntry() override { qunsetenv("XDG_CONFIG_HOME"); }
    SessionEntry(SessionEntry const&) = delete;
    SessionEntry& operator=(SessionEntry const&) = delete;

    void work_in(QString const& folder)
    {
        program_folder = home.filePath(folder);
        files.emplace(codec, program_folder);
        entries.emplace(codec, *files);
    }
    /// What the program tells the entry to be, in the office's own letters.
    [[nodiscard]] std::string command() const
    {
        return "\"" + codec.from_unicode(program_folder) + "/vexloim.exe\" /m";
    }
    [[nodiscard]] QString file() const
    {
        return home.filePath(words("config/autostart/Vexlo IM AutoStart.desktop"));
    }

    QTemporaryDir home;
    QString program_folder;
    qt::Codec codec{1252};
    std::optional<qt::DeskFiles> files;
    std::optional<qt::DeskSessionEntries> entries;
};

TEST_F(SessionEntry, IsADesktopFileOfItsNameInTheAutostartFolder)
{
    work_in(words("vexlo"));

    ASSERT_TRUE(entries->write(name, command()));

    EXPECT_EQ(content_of(file()), "[Desktop Entry]\nType=Application\nName=Vexlo Instant "
                                  "Messaging\nExec=\"" +
                                      program_folder.toUtf8() +
                                      "/vexloim.exe\" /m\nTerminal=false\n");
}

TEST_F(SessionEntry, ReadsAsItWasTold)
{
    work_in(words("vexlo"));

    ASSERT_TRUE(entries->write(name, command()));

    EXPECT_EQ(entries->read(name), command());
}

TEST_F(SessionEntry, IsAbsentUntilItIsWrittenAndAfterItWasRemoved)
{
    work_in(words("vexlo"));
    EXPECT_EQ(entries->read(name), "");

    ASSERT_TRUE(entries->write(name, command()));
    EXPECT_TRUE(entries->remove(name));

    EXPECT_EQ(entries->read(name), "");
    EXPECT_FALSE(QFile::exists(file()));
    EXPECT_FALSE(entries->remove(name)) << "there is none any more";
}

TEST_F(SessionEntry, NamesTheRealFolderWhereTheOfficesLettersDoNot)
{
    work_in(words("программа Ж"));
    ASSERT_NE(command().find('?'), std::string::npos);

    ASSERT_TRUE(entries->write(name, command()));

    EXPECT_TRUE(
        content_of(file()).contains("Exec=\"" + program_folder.toUtf8() + "/vexloim.exe\""));
    EXPECT_EQ(entries->read(name), command());
}

TEST_F(SessionEntry, AnEntryOfAnotherFolderIsReadAsItStands)
{
    work_in(words("vexlo"));
    put(file(), "# by hand\n[Desktop Action More]\nExec=other\n[Desktop Entry]\nName=x\n"
                "Exec = \"/opt/a\\\\$b/vexloim.exe\" /m\r\n[Desktop Action Last]\nExec=last\n");

    EXPECT_EQ(entries->read(name), "\"/opt/a$b/vexloim.exe\" /m");
}

TEST_F(SessionEntry, AFileWithoutACommandIsNoEntry)
{
    work_in(words("vexlo"));
    for (char const* const content :
         {"", "\n\n", "Exec=vexloim\n", "[Desktop Entry]\nExec\n", "[Desktop Entry]\nName=Exec\n",
          "[Desktop Entry]\n=Exec\nTryExec=vexloim\n",
          "\x7f"
          "ELF\x02\x01[Desktop Entry]\nExec=x"}) {
        put(file(), content);
        EXPECT_EQ(entries->read(name), "") << content;
    }
}

TEST_F(SessionEntry, AFolderThatCannotBeMadeIsARefusal)
{
    work_in(words("vexlo"));
    put(home.filePath(words("config/autostart")), "a file in the folder's place");

    EXPECT_FALSE(entries->write(name, command()));
    EXPECT_EQ(entries->read(name), "");
}

TEST_F(SessionEntry, AFullDiskIsARefusal)
{
    work_in(words("vexlo"));
    QDir().mkpath(QFileInfo(file()).absolutePath());
    ASSERT_TRUE(QFile::link(words("/dev/full"), file()));

    EXPECT_FALSE(entries->write(name, command()));
}

/// Names of folders that a desktop might take for something else.
constexpr std::array awkward{
    "with blank",  "do$HOME",  "ba`ck`tick", "quo\"te",      "a\\b", "end\\", "tab\tline\nfeed",
    "semi;colon&", "#hash =x", "~tilde*",    "Grüße Ж 日本", "\"\"", "$$\\\""};
/// These are right by the standard, yet some desktops look for the program before they halve them.
constexpr std::array with_percent{"100%", "%f %%u"};

TEST_F(SessionEntry, HoldsEveryFolderToTheLetter)
{
    auto const hold = [this](char const* folder) {
        work_in(words(folder));
        ASSERT_TRUE(entries->write(name, command()));
        EXPECT_EQ(entries->read(name), command()) << folder;
    };
    std::ranges::for_each(awkward, hold);
    std::ranges::for_each(with_percent, hold);
}

/// The desktop's own reader of such entries takes each argument as it was meant.
TEST_F(SessionEntry, IsStartedFromEveryFolderByADesktop)
{
    QString const gio = QStandardPaths::findExecutable(words("gio"));
    if (gio.isEmpty()) {
        GTEST_SKIP() << "no gio here";
    }
    QString const told = home.filePath(words("told"));
    for (char const* const folder : awkward) {
        work_in(words(folder));
        put(files->real(codec.from_unicode(program_folder) + "/vexloim.exe"),
            "#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" >'" + QFile::encodeName(told) + ".new'\n" +
                "mv '" + QFile::encodeName(told) + ".new' '" + QFile::encodeName(told) + "'\n");
        QFile::setPermissions(program_folder + words("/vexloim.exe"),
                              QFile::ReadOwner | QFile::ExeOwner);
        ASSERT_TRUE(entries->write(name, command()));

        EXPECT_EQ(QProcess::execute(gio, {words("launch"), file()}), 0) << folder;
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(told); })) << folder;
        EXPECT_EQ(content_of(told), "1|/m|") << folder;
        QFile::remove(told);
    }
}

TEST(ExecLine, APercentIsDoubledAndWhatTheQuotesMeanIsEscapedTwice)
{
    EXPECT_EQ(qt::exec_line(words("\"/a%b/c$d\\e\" /m")), words("\"/a%%b/c\\\\$d\\\\\\\\e\" /m"));
}

TEST(ExecLine, ACommandWithoutQuotesStaysPlain)
{
    EXPECT_EQ(qt::exec_line(words("vexloim /m 5%")), words("vexloim /m 5%%"));
    EXPECT_EQ(qt::command_of(words("vexloim /m 5%%")), words("vexloim /m 5%"));
    EXPECT_EQ(qt::exec_line(words("\"")), words("\""));
}

TEST(ExecLine, ACutValueIsTakenAsFarAsItGoes)
{
    EXPECT_EQ(qt::command_of(words("\"/opt/vexlo\\")), words("\"/opt/vexlo\\"));
    EXPECT_EQ(qt::command_of(words("")), words(""));
}

} // namespace
