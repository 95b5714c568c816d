// Real processes on this machine: which are listed, which are ended, and how a companion is
// started.

#include "desktop/companions.h"
#include "qt/desk_files.h"
#include "qt/desk_outside.h"
#include "qt/desk_session.h"
#include "tests/unit/fakes.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using testing::Contains;
using testing::Each;
using testing::Field;
using testing::Not;
using Entry = platform::Processes::Entry;

constexpr uid_t somebody_else = 65534;

/// Children of the test that sleep under names of our choice. Each name holds the number of this
/// process, so that no other process on the machine bears it.
class RealProcesses : public testing::Test {
protected:
    RealProcesses() { chmod(QFile::encodeName(folder.path()).constData(), 0755); }

    ~RealProcesses() override
    {
        for (QProcess& child : children) {
            child.kill();
            child.waitForFinished();
        }
    }

    RealProcesses(RealProcesses const&) = delete;
    RealProcesses& operator=(RealProcesses const&) = delete;

    [[nodiscard]] static QString mark() { return QStringLiteral("-%1-").arg(getpid()); }

    [[nodiscard]] QString path(QString const& name) const { return folder.filePath(name); }

    QProcess& start(QString const& name, uid_t user = geteuid())
    {
        QFile::copy(QStringLiteral("/bin/sleep"), path(name));
        QProcess& child = children.emplace_back();
        child.setChildProcessModifier([user] { static_cast<void>(setuid(user)); });
        child.start(path(name), {QStringLiteral("60")});
        EXPECT_TRUE(child.waitForStarted()) << name.toStdString();
        return child;
    }

    static bool ends(QProcess& child) { return child.waitForFinished(5000); }
    static bool runs(QProcess const& child) { return child.state() == QProcess::Running; }

    QTemporaryDir folder;
    std::list<QProcess> children;
    qt::Codec codec{1252};
    qt::DeskProcesses processes{codec};
    forms::FrmMain frmMain{unit::western};
    desktop::Companions companions{frmMain, processes};
};

TEST_F(RealProcesses, AreListedByTheWholeNameOfTheirFile)
{
    // The kernel's own short name of this one is cut at fifteen characters.
    auto const name = QStringLiteral("vexlo-test") + mark() + QStringLiteral("watchdog.exe");
    QProcess const& child = start(name);

    EXPECT_THAT(processes.others(),
                Contains(testing::AllOf(Field(&Entry::id, child.processId()),
                                        Field(&Entry::executable, name.toStdString()))));
}

TEST_F(RealProcesses, AreListedWithoutOurselves)
{
    EXPECT_THAT(processes.others(), Each(Field(&Entry::id, testing::Ne(getpid()))));
}

TEST_F(RealProcesses, AreListedWhenTheirFileIsGone)
{
    auto const name = QStringLiteral("vexlo-test") + mark() + QStringLiteral("gone.exe");
    QProcess const& child = start(name);
    QFile::remove(path(name));

    EXPECT_THAT(processes.others(),
                Contains(testing::AllOf(Field(&Entry::id, child.processId()),
                                        Field(&Entry::executable, name.toStdString()))));
}

TEST_F(RealProcesses, OfAnotherUserAreNeitherListedNorEnded)
{
    if (geteuid() != 0) {
        EXPECT_THAT(processes.others(), Not(Contains(Field(&Entry::id, 1))));
        return;
    }
    auto const name = QStringLiteral("vexlo-test") + mark() + QStringLiteral("foreign.exe");
    QProcess const& foreign = start(name, somebody_else);
    if (QFileInfo(QStringLiteral("/proc/%1").arg(foreign.processId())).ownerId() != somebody_else) {
        GTEST_SKIP() << "nobody can become somebody else here";
    }

    companions.KillProcess(name.toStdString());

    EXPECT_THAT(processes.others(), Not(Contains(Field(&Entry::id, foreign.processId()))));
    QTest::qWait(100);
    EXPECT_TRUE(runs(foreign));
}

TEST_F(RealProcesses, AreEndedByTheTailOfTheirNamesInAnyCase)
{
    auto const tail = mark() + QStringLiteral("watchdog.exe");
    QProcess& first = start(QStringLiteral("vexlo") + tail);
    QProcess& second = start(QStringLiteral("my-longer-vexlo") + tail.toUpper());
    QProcess& same = start(QStringLiteral("vexlo") + tail);
    QProcess const& longer = start(QStringLiteral("vexlo") + tail + QStringLiteral(".old"));
    QProcess const& shorter = start(QStringLiteral("vexlo-test") + mark() + QStringLiteral("dog"));

    companions.KillProcess(tail.toStdString());

    EXPECT_TRUE(ends(first));
    EXPECT_TRUE(ends(second));
    EXPECT_TRUE(ends(same));
    EXPECT_EQ(first.exitStatus(), QProcess::CrashExit); // Without any warning.
    QTest::qWait(100);
    EXPECT_TRUE(runs(longer));
    EXPECT_TRUE(runs(shorter));
}

TEST_F(RealProcesses, AreKnownByTheirFileAndNeverByTheirCommandLine)
{
    auto const name = QStringLiteral("vexlo-test") + mark() + QStringLiteral("named.exe");
    QProcess& child = children.emplace_back();
    child.start(QStringLiteral("/bin/sh"),
                {QStringLiteral("-c"), QStringLiteral("read line"), name});
    ASSERT_TRUE(child.waitForStarted());

    companions.KillProcess(name.toStdString());

    QTest::qWait(100);
    EXPECT_TRUE(runs(child));
}

TEST_F(RealProcesses, ThatAreGoneArePassedOver)
{
    QProcess& child = start(QStringLiteral("vexlo-test") + mark() + QStringLiteral("short.exe"));
    auto const id = static_cast<long>(child.processId());
    processes.kill(id);
    ASSERT_TRUE(ends(child));

    processes.kill(id);

    EXPECT_THAT(processes.others(), Not(Contains(Field(&Entry::id, id))));
}

// Companions

class RealCompanion : public testing::Test {
protected:
    QTemporaryDir folder;
    qt::Codec codec{1252};
    qt::DeskFiles files{codec, folder.path()};
    qt::DeskOutside outside{codec, files};
    std::string const program = folder.filePath(QStringLiteral("vexlochat.exe")).toStdString();
};

TEST_F(RealCompanion, IsStartedWithoutArguments)
{
    auto const told = folder.filePath(QStringLiteral("told"));
    files.write(program, "#!/bin/sh\necho \"$# $*\" > '" + told.toStdString() + "'\n");
    chmod(program.c_str(), 0755);

    outside.start(program);

    auto const content = [&told] {
        QFile file(told);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return content() == "0 \n"; }));
}

TEST_F(RealCompanion, ThatIsMissingIsAFailure)
{
    EXPECT_THROW(outside.start(program), text::Failure);
}

TEST_F(RealCompanion, ThatIsNoProgramIsAFailure)
{
    files.write(program, "a text");
    EXPECT_THROW(outside.start(program), text::Failure);

    files.remove(program);
    files.make_folder(program);
    EXPECT_THROW(outside.start(program), text::Failure);
}

// Files

TEST(RealFiles, AFolderExistsAndIsNoFile)
{
    QTemporaryDir const folder;
    qt::Codec const codec(1252);
    qt::DeskFiles files(codec, folder.path());
    auto const place = folder.path().toStdString();
    files.make_folder(place + "/bell.wav");
    files.write(place + "/gong.wav", "RIFF");

    EXPECT_TRUE(files.exists(place + "/bell.wav"));
    EXPECT_FALSE(files.is_file(place + "/bell.wav"));
    EXPECT_TRUE(files.exists(place + "/gong.wav"));
    EXPECT_TRUE(files.is_file(place + "/gong.wav"));
    EXPECT_FALSE(files.exists(place + "/horn.wav"));
    EXPECT_FALSE(files.is_file(place + "/horn.wav"));
}

} // namespace
