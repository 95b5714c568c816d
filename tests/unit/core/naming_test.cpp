#include "core/naming.h"
#include "forms/forms.h"
#include "tests/unit/counter.h"
#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using unit::Counter;

class Names : public testing::Test {
protected:
    Names()
    {
        frmMain.getusers.attach([this] { told.push_back("getusers as " + frmMain.friendlyname); });
        frmMain.saveallsettings.attach(
            [this] { told.push_back("saved as " + frmMain.friendlyname); });
        boxes.behind = [this] { box_was_open = frmMain.boxopen.on(); };
    }

    unit::ScriptedBoxes boxes;
    unit::FakeEnvironment environment;
    forms::Forms forms{unit::western};
    forms::FrmMain& frmMain = forms.frmMain;
    std::vector<std::string> told;
    bool box_was_open = false;
    core::Naming naming{frmMain, boxes, environment};
};

TEST_F(Names, TheFirstOneIsAskedForWithTheLoginAsDefault)
{
    naming.first_name();

    ASSERT_EQ(boxes.asked.size(), 1U);
    EXPECT_EQ(boxes.asked[0].title, "Vexlo Instant Messaging Setup");
    EXPECT_EQ(boxes.asked[0].prompt, "Please enter your name:\r\n");
    EXPECT_EQ(boxes.asked[0].default_text, "alice");
}

TEST_F(Names, TheFirstOneIsKeptInUpperCaseAndMakesTheIdentity)
{
    boxes.answers = {"Alice Meyer"};

    naming.first_name();

    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
    EXPECT_EQ(frmMain.myname, "ROOM12\\ALICE");
    EXPECT_EQ(frmMain.user, "[ROOM12\\ALICE]");
}

TEST_F(Names, TheFirstOneIsToldToNobodyYet)
{
    boxes.answers = {"Alice Meyer"};

    naming.first_name();

    EXPECT_THAT(told, IsEmpty());
}

TEST_F(Names, TheFirstOneMayBeEmpty)
{
    frmMain.friendlyname = "LEFT OVER";

    naming.first_name();

    EXPECT_EQ(frmMain.friendlyname, "");
    EXPECT_EQ(frmMain.user, "[ROOM12\\ALICE]");
}

TEST_F(Names, TheFirstOneMayHoldAComma)
{
    boxes.answers = {"Meyer, Alice"};

    naming.first_name();

    EXPECT_EQ(frmMain.friendlyname, "MEYER, ALICE");
}

TEST_F(Names, TheBoxOfTheFirstOneHoldsTheQueueUp)
{
    frmMain.cue.emplace_back("a row");

    naming.first_name();

    EXPECT_TRUE(box_was_open);
    EXPECT_FALSE(frmMain.boxopen.on());
    EXPECT_TRUE(frmMain.Timer3.enabled());
}

TEST_F(Names, AnAccountThatIsKnownIsNotReadAgain)
{
    frmMain.myname = "Room99\\Zoe";

    naming.first_name();

    EXPECT_EQ(frmMain.myname, "Room99\\Zoe");
    EXPECT_EQ(frmMain.user, "[ROOM99\\ZOE]");
}

TEST_F(Names, AChangeIsAskedForWithThePresentNameAsDefault)
{
    frmMain.friendlyname = "ALICE MEYER";

    naming.Command1();

    ASSERT_EQ(boxes.asked.size(), 1U);
    EXPECT_EQ(boxes.asked[0].title, "Change your Vexlo IM Name");
    EXPECT_EQ(boxes.asked[0].prompt, "Please enter your name:\r\n");
    EXPECT_EQ(boxes.asked[0].default_text, "ALICE MEYER");
}

TEST_F(Names, AChangeIsAnnouncedAndThenSaved)
{
    frmMain.friendlyname = "ALICE MEYER";
    boxes.answers = {"alice b\xF6rg"};

    naming.Command1();

    EXPECT_EQ(frmMain.friendlyname, "ALICE B\xD6RG");
    EXPECT_THAT(told, ElementsAre("getusers as ALICE B\xD6RG", "saved as ALICE B\xD6RG"));
}

TEST_F(Names, AChangeKeepsTheCaseOfTheAccountAndMakesTheIdentity)
{
    environment.values = {{"computername", "Room12"}, {"username", "alice"}};
    boxes.answers = {"Bob"};

    naming.Command1();

    EXPECT_EQ(frmMain.myname, "Room12\\alice");
    EXPECT_EQ(frmMain.user, "[ROOM12\\ALICE]");
}

TEST_F(Names, AnEmptyChangeChangesNothing)
{
    frmMain.friendlyname = "ALICE MEYER";
    frmMain.user = "[OLD\\NAME]";

    naming.Command1();

    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
    EXPECT_EQ(frmMain.user, "[OLD\\NAME]");
    EXPECT_EQ(frmMain.myname, "");
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(Names, TheBoxOfAChangeDoesNotHoldTheQueueUp)
{
    boxes.answers = {"Bob"};
    frmMain.cue.emplace_back("a row");

    naming.Command1();

    EXPECT_FALSE(box_was_open);
    EXPECT_FALSE(frmMain.Timer3.enabled());
}

TEST_F(Names, AChangeThatCannotBeAnnouncedIsNotSaved)
{
    boxes.answers = {"Bob"};
    Counter const saved(frmMain.saveallsettings);
    frmMain.getusers.attach([] { throw text::Failure(text::no_route_to_host, 101, "socket"); });

    EXPECT_THROW(naming.Command1(), text::Failure);

    EXPECT_EQ(frmMain.friendlyname, "BOB");
    EXPECT_EQ(saved.count(), 0);
}

TEST_F(Names, AMissingOneIsMadeByTheBoxOfTheFirstRun)
{
    boxes.answers = {"Alice Meyer"};

    naming.makename();

    ASSERT_EQ(boxes.asked.size(), 1U);
    EXPECT_EQ(boxes.asked[0].title, "Vexlo Instant Messaging Setup");
    EXPECT_EQ(boxes.asked[0].default_text, "");
    EXPECT_TRUE(box_was_open);
    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
    EXPECT_EQ(frmMain.myname, "ROOM12\\ALICE");
    EXPECT_EQ(frmMain.user, "[ROOM12\\ALICE]");
}

TEST_F(Names, AMissingOneThatIsNotGivenMakesNoIdentity)
{
    naming.makename();

    EXPECT_EQ(frmMain.friendlyname, "");
    EXPECT_EQ(frmMain.user, "");
    EXPECT_FALSE(frmMain.boxopen.on());
}

TEST_F(Names, OneThatIsThereIsNotAskedForAndMakesTheIdentity)
{
    frmMain.friendlyname = "ALICE MEYER";

    naming.makename();

    EXPECT_THAT(boxes.asked, IsEmpty());
    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
    EXPECT_EQ(frmMain.user, "[ROOM12\\ALICE]");
}

} // namespace
