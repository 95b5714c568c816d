// Which processes are ended.

#include "desktop/companions.h"
#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProcessList : public platform::Processes {
public:
    [[nodiscard]] std::vector<Entry> others() const override { return entries; }
    void kill(long id) override { killed.push_back(id); }

    std::vector<Entry> entries{
        {.id = 1, .executable = "dog.exe"},     {.id = 2, .executable = "cat.exe"},
        {.id = 3, .executable = "BULLDOG.EXE"}, {.id = 4, .executable = "dog.exe.old"},
        {.id = 5, .executable = "og.exe"},      {.id = 6, .executable = ""},
        {.id = 7, .executable = "dog.exe"}};
    std::vector<long> killed;
};

class KillProcess : public testing::Test {
protected:
    forms::FrmMain frmMain{unit::western};
    ProcessList processes;
    desktop::Companions companions{frmMain, processes};
};

TEST_F(KillProcess, EndsEveryProcessWhoseNameEndsSo)
{
    companions.KillProcess("dog.exe");

    EXPECT_THAT(processes.killed, ElementsAre(1, 3, 7));
}

TEST_F(KillProcess, DoesNotMindCapitals)
{
    companions.KillProcess("DOG.exe");

    EXPECT_THAT(processes.killed, ElementsAre(1, 3, 7));
}

TEST_F(KillProcess, LowersTheLettersOfTheOfficeToo)
{
    processes.entries = {{.id = 8, .executable = "H\xDCHNER.exe"}};

    companions.KillProcess("h\xFChner.exe");

    EXPECT_THAT(processes.killed, ElementsAre(8));
}

TEST_F(KillProcess, WithoutANameEndsNothing)
{
    companions.KillProcess("");

    EXPECT_THAT(processes.killed, IsEmpty());
}

TEST_F(KillProcess, ThatFindsNothingSaysNothing)
{
    companions.KillProcess("bird.exe");

    EXPECT_THAT(processes.killed, IsEmpty());
}

} // namespace
