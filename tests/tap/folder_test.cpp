#include "tap/folder.h"

#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ReadFolder : testing::Test {
    tap::Folder& read()
    {
        folder.read();
        return folder;
    }

    unit::MemoryFiles files;
    unit::FakeEnvironment environment;
    tap::Folder folder{"/home/alice/vexlo", files, environment, unit::western};
    std::string& settings = files.contents["/home/alice/vexlo/settings.txt"];
    std::string& users = files.contents["/home/alice/vexlo/users.txt"];
    std::string& groups = files.contents["/home/alice/vexlo/groups.txt"];
};

TEST_F(ReadFolder, ItKnowsNameAndPortsOfTheSettings)
{
    settings = "[MY NAME             ]=Alice Meyer\r\n[LISTENINGPORT       ]=5111\r\n"
               "[SENDINGPORT         ]=5112\r\n";

    auto const& frmMain = read().forms.frmMain;

    EXPECT_EQ(frmMain.user, "[ROOM12\\ALICE]");
    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
    EXPECT_EQ(frmMain.udplistenport, 5111);
    EXPECT_EQ(frmMain.udpsendremote, 5111);
    EXPECT_EQ(frmMain.udpsendport, 5112);
}

TEST_F(ReadFolder, ItKnowsTheDirectoryAndTheGroups)
{
    users = "[ROOM07\\BOB]=BOB\r\n[ROOM33\\CARL]=CARL DUNN\r\n";
    groups = "[Group02name  ]=SALES\r\n[Group02member]=[ROOM33\\CARL]\r\n";

    auto const& forms = read().forms;

    EXPECT_THAT(forms.frmMain.userlist.rows(),
                ElementsAre("[ROOM07\\BOB]=BOB", "[ROOM33\\CARL]=CARL DUNN"));
    EXPECT_EQ(forms::group_name(forms.frmMain.List1.row(0)), "SALES");
    EXPECT_THAT(forms.groups.group[1].rows(), ElementsAre("CARL DUNN"));
}

TEST_F(ReadFolder, AnEmptyNameOfTheSettingsStays)
{
    settings = "[MY NAME             ]=\r\n";

    EXPECT_EQ(read().forms.frmMain.friendlyname, "");
}

TEST_F(ReadFolder, WithoutFilesThereIsTheLoginNameAndTheUsualPorts)
{
    files.contents.clear();

    auto const& frmMain = read().forms.frmMain;

    EXPECT_EQ(frmMain.friendlyname, "ALICE");
    EXPECT_EQ(frmMain.udplistenport, 4111);
    EXPECT_THAT(frmMain.userlist.rows(), IsEmpty());
    EXPECT_THAT(frmMain.List1.rows(), IsEmpty());
    EXPECT_THAT(files.contents, IsEmpty());
}

TEST_F(ReadFolder, TheCacheIsNotClearedForTheMessenger)
{
    settings = "[STARTCLEARUSERCACHE ]=1\r\n";
    users = "[ROOM07\\BOB]=BOB\r\n";

    EXPECT_EQ(read().forms.frmMain.userlist.count(), 1);
    EXPECT_EQ(users, "[ROOM07\\BOB]=BOB\r\n");
}

TEST_F(ReadFolder, AnotherNameAndAnotherPortStandInstead)
{
    read();
    folder.set_name("Door bell");
    folder.set_port(6000);

    EXPECT_EQ(folder.forms.frmMain.friendlyname, "DOOR BELL");
    EXPECT_EQ(folder.forms.frmMain.udpsendremote, 6000);
}

TEST_F(ReadFolder, NothingCanBeWrittenThroughIt)
{
    tap::ReadOnlyFiles refusing(files);
    auto const before = files.contents;

    for (std::function<void()> const& change : std::initializer_list<std::function<void()>>{
             [&] { refusing.write("/home/alice/vexlo/users.txt", "x"); },
             [&] { refusing.remove("/home/alice/vexlo/users.txt"); },
             [&] { refusing.make_folder("/home/alice/vexlo/logs"); }}) {
        EXPECT_THROW(change(), text::Failure);
    }

    EXPECT_EQ(files.contents, before);
    EXPECT_TRUE(refusing.is_file("/home/alice/vexlo/users.txt"));
}

} // namespace
