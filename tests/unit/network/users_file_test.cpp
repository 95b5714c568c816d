#include "forms/forms.h"
#include "network/users_file.h"
#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto path = "app/users.txt";

class Users : public testing::Test {
protected:
    void file_holds(std::string content) { files.contents[path] = std::move(content); }
    [[nodiscard]] std::string file() const { return files.read(path); }
    [[nodiscard]] auto rows() const { return forms.frmMain.userlist.rows(); }

    unit::MemoryFiles files;
    unit::FakeEnvironment environment;
    forms::Forms forms{unit::western};
    network::UsersFile users{forms.frmMain, forms.settings, files, environment, path};
};

TEST_F(Users, AMissingFileIsAnEmptyDirectory)
{
    forms.frmMain.userlist.add("left over");

    users.load();

    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(files.exists(path));
}

TEST_F(Users, AreReadInUpperCaseAndSorted)
{
    file_holds("[ROOM12\\ALICE]=Alice Meyer\r\n[room07\\bob]=Bob\r\n");

    users.load();

    EXPECT_THAT(rows(), ElementsAre("[ROOM07\\BOB]=BOB", "[ROOM12\\ALICE]=ALICE MEYER"));
}

TEST_F(Users, ANameWithACommaMakesTwoRows)
{
    file_holds("[ROOM12\\ALICE]=MEYER, ALICE\r\n");

    users.load();

    EXPECT_THAT(rows(), ElementsAre("[ROOM12\\ALICE]=MEYER", "ALICE"));
}

TEST_F(Users, TheReaderDropsOnlyTheWholeRowOfAll)
{
    file_holds("[ALL]=ALL\r\n[ALL]=ALLAN\r\n[all]=all\r\n");

    users.load();

    EXPECT_THAT(rows(), ElementsAre("[ALL]=ALL", "[ALL]=ALLAN"));
}

TEST_F(Users, TheWriterDropsEveryRowThatBeginsWithAll)
{
    for (auto const* row : {"[ALL]=ALL", "[ALL]=ALLAN", "[ALLAN\\A]=A", "no row at all"}) {
        forms.frmMain.userlist.add(row);
    }

    users.save();

    EXPECT_EQ(file(), "[ALLAN\\A]=A\r\nNO ROW AT ALL\r\n");
}

TEST_F(Users, AnEmptyDirectoryIsAnEmptyFile)
{
    file_holds("[ROOM07\\BOB]=BOB\r\n");

    users.save();

    EXPECT_EQ(file(), "");
}

TEST_F(Users, ALoadMakesTheOwnIdentityAnew)
{
    forms.frmMain.user = "[OLD\\NAME]";
    forms.frmMain.myname = "OTHER\\NAME";

    users.load();

    EXPECT_EQ(forms.frmMain.user, "[ROOM12\\ALICE]");
}

TEST_F(Users, TheCacheIsClearedOnceInARun)
{
    forms.settings.startclearusers.set(1);
    forms.frmMain.friendlyname = "ALICE MEYER";
    file_holds("[ROOM07\\BOB]=BOB\r\n");

    users.load();
    EXPECT_EQ(file(), "[ROOM12\\ALICE]=ALICE MEYER\r\n");
    EXPECT_THAT(rows(), ElementsAre("[ROOM12\\ALICE]=ALICE MEYER"));

    file_holds("[ROOM07\\BOB]=BOB\r\n");
    users.load();
    EXPECT_THAT(rows(), ElementsAre("[ROOM07\\BOB]=BOB"));
}

TEST_F(Users, TheCacheIsKeptWithoutTheOption)
{
    file_holds("[ROOM07\\BOB]=BOB\r\n");

    users.load();

    EXPECT_THAT(rows(), ElementsAre("[ROOM07\\BOB]=BOB"));
    EXPECT_FALSE(forms.frmMain.cachecleared.on());
}

TEST_F(Users, AnEmptyLineIsARowAndIsWrittenBack)
{
    file_holds("[ROOM07\\BOB]=BOB\r\n\r\n");

    users.load();
    users.save();

    EXPECT_THAT(rows(), ElementsAre("", "[ROOM07\\BOB]=BOB"));
    EXPECT_EQ(file(), "\r\n[ROOM07\\BOB]=BOB\r\n");
}

TEST_F(Users, AFileThatCannotBeWrittenIsAFailure)
{
    files.read_only = true;

    EXPECT_THROW(users.save(), text::Failure);
}

} // namespace
