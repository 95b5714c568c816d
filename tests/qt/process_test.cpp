#include "qt/desk_process.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using qt::DeskProcess;

/// A program folder that nobody else runs from.
struct Copy : testing::Test {
    Copy() { EXPECT_TRUE(folder.isValid()); }
    ~Copy() override { QFile::remove(process_in(folder.path()).lock_path()); }

    [[nodiscard]] DeskProcess process_in(QString const& place) const
    {
        return DeskProcess(codec, QString(), place);
    }

    qt::Codec codec{1252};
    QTemporaryDir folder;
};

/// Another process, which runs `first`, tells so, and stays until it is killed.
class Other {
public:
    template <typename First>
    explicit Other(First first)
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        process_ = fork();
        if (process_ == 0) {
            char const told = first() ? 'y' : 'n';
            static_cast<void>(!write(ends[1], &told, 1));
            pause();
            _exit(0);
        }
        EXPECT_EQ(read(ends[0], &answer, 1), 1);
        close(ends[0]);
        close(ends[1]);
    }
    ~Other() { crash(); }
    Other(Other const&) = delete;
    Other& operator=(Other const&) = delete;

    void crash()
    {
        if (process_ > 0) {
            kill(process_, SIGKILL);
            waitpid(process_, nullptr, 0);
            process_ = 0;
        }
    }

    char answer = '?';

private:
    pid_t process_ = 0;
};

TEST_F(Copy, ASecondOneInTheFolderIsNoticed)
{
    EXPECT_FALSE(process_in(folder.path()).other_copy_runs());
    EXPECT_TRUE(process_in(folder.path()).other_copy_runs());
}

TEST_F(Copy, ASecondOneIsNoticedWhateverItsFolderIsCalled)
{
    QString const link = folder.path() + QStringLiteral("-link");
    ASSERT_TRUE(QFile::link(folder.path(), link));
    EXPECT_FALSE(process_in(folder.path()).other_copy_runs());
    EXPECT_TRUE(process_in(link).other_copy_runs());
    QFile::remove(link);
}

TEST_F(Copy, OneInAnotherFolderIsNoneOfOurs)
{
    QTemporaryDir const elsewhere;
    Other const other([&] { return process_in(elsewhere.path()).other_copy_runs(); });
    EXPECT_EQ(other.answer, 'n');
    EXPECT_FALSE(process_in(folder.path()).other_copy_runs());
    QFile::remove(process_in(elsewhere.path()).lock_path());
}

TEST_F(Copy, OneOfAnotherUserIsNoneOfOurs)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can be somebody else";
    }
    constexpr uid_t somebody = 65534;
    QString others_path = process_in(folder.path()).lock_path();
    others_path.replace(QStringLiteral("vexloim-0-"), QStringLiteral("vexloim-65534-"));
    Other const other(
        [this] { return setuid(somebody) != 0 || process_in(folder.path()).other_copy_runs(); });
    EXPECT_EQ(other.answer, 'n');
    EXPECT_TRUE(QFile::exists(others_path));
    EXPECT_FALSE(process_in(folder.path()).other_copy_runs());
    QFile::remove(others_path);
}

TEST_F(Copy, ACrashLeavesNoLockBehind)
{
    Other other([this] { return process_in(folder.path()).other_copy_runs(); });
    EXPECT_EQ(other.answer, 'n');
    EXPECT_TRUE(process_in(folder.path()).other_copy_runs());

    other.crash();
    EXPECT_FALSE(process_in(folder.path()).other_copy_runs());
}

struct Stored : testing::Test {
    Stored() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, place.path()); }

    [[nodiscard]] static QVariant value(char const* name)
    {
        QSettings const settings(QStringLiteral("Vexlo"), QStringLiteral("Vexlo IM"));
        return settings.value(QLatin1String(name));
    }

    qt::Codec codec{1252};
    QTemporaryDir place;
};

TEST_F(Stored, APathKeepsTheLettersThatTheOfficesSetLacks)
{
    QString const folder = QStringLiteral("/home/\u5c0f\u6797/B\u00fcro");
    DeskProcess process(codec, QString(), folder);
    EXPECT_EQ(process.program_folder(), "/home/?\?/B\xfcro");

    process.store_setting("Settings", "Path", process.program_folder() + "/vexloim.exe");
    EXPECT_EQ(value("Settings/Path").toString(), folder + QStringLiteral("/vexloim.exe"));
}

TEST_F(Stored, AnyOtherTextIsStoredInTheOfficesLetters)
{
    DeskProcess process(codec, QString(), QStringLiteral("/opt/vexlo"));
    process.store_setting("Settings", "Name", "Am\xe9lie");
    EXPECT_EQ(value("Settings/Name").toString(), QStringLiteral("Am\u00e9lie"));
}

} // namespace
