#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class UserCheck : public TwoPeople {
protected:
    UserCheck() : TwoPeople({.settings = {{"AUTOCHECKUSERS", "1"}}})
    {
        office.run_for(watch - (office.scheduler.now() % watch) + 1ms);
        frmMain.usercount = "0";
        office.segment.forget();
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(UserCheck, RunsAtTheThreeHundredAndSixtyFirstTick)
{
    office.run_for(360 * watch);
    EXPECT_THAT(office.segment.texts(), IsEmpty());
    EXPECT_EQ(frmMain.usercount, "360");

    office.run_for(watch);

    EXPECT_THAT(office.segment.texts().at(0), announcement(alice_id, "ALICE MEYER"));
    EXPECT_EQ(frmMain.usercount, "0");
}

TEST_F(UserCheck, CountsNothingWithoutItsOption)
{
    frmMain.autocheckusers.set(0);

    office.run_for(1h);

    EXPECT_EQ(frmMain.usercount, "0");
    EXPECT_THAT(office.segment.texts(), IsEmpty());
}

TEST_F(UserCheck, ATickWithWorkInTheQueueDoesNotCount)
{
    office.segment.inject_to("ROOM12", "***stuck");
    office.run_for(10 * watch);

    EXPECT_EQ(frmMain.usercount, "0");
}

TEST_F(UserCheck, EmptiesTheListAndSaysSo)
{
    frmMain.usercount = "360";
    frmMain.statustext.set_caption("Message sent to Bob");
    Lines seen;
    frmMain.statustext.changed.attach([&] { seen.push_back(frmMain.statustext.caption()); });

    office.run_for(watch);

    EXPECT_THAT(alice.status_repaints, ElementsAre("Checking for users ..."));
    EXPECT_THAT(seen, ElementsAre("Checking for users ...", "Message sent to Bob",
                                  "Vexlo - Alice Meyer Listening"));
    EXPECT_THAT(frmMain.allusers.rows(), IsEmpty());
    office.settle();
    EXPECT_THAT(frmMain.allusers.rows(), ElementsAre("Alice Meyer", "Bob"));
}

TEST_F(UserCheck, DoesNotReadTheFilesAgain)
{
    frmMain.usercount = "360";
    alice.files.put("users.txt", "[ROOM33\\CARL]=CARL DUNN\r\n");
    auto const before = frmMain.userlist.rows();

    office.run_for(watch);

    EXPECT_EQ(frmMain.userlist.rows(), before);
}

TEST_F(UserCheck, ASaveStartsTheCountAnew)
{
    frmMain.usercount = "200";

    alice.enter([this] { frmMain.saveallsettings.run(); });

    EXPECT_EQ(frmMain.usercount, "0");
}

TEST_F(UserCheck, NoticesALostNetwork)
{
    frmMain.usercount = "360";
    alice.unplug();

    office.run_for(watch);

    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_EQ(alice.log().back(), logged("Network Error No route to host."));
    EXPECT_EQ(frmMain.usercount, "0");
    EXPECT_TRUE(alice.running());
}

TEST_F(UserCheck, HasEmptiedTheListWhenItsRoundFails)
{
    frmMain.usercount = "360";
    alice.unplug();

    office.run_for(watch);

    EXPECT_THAT(frmMain.allusers.rows(), IsEmpty());
}

TEST_F(UserCheck, ItsOtherRoutineReloadsFirstAndIsNeverStarted)
{
    alice.journal.switch_on();
    office.run_for(1h);
    EXPECT_FALSE(frmMain.Timer2.enabled());
    alice.journal.clear();

    alice.enter([this] { frmMain.Timer2.tick.run(); });

    EXPECT_THAT(alice.journal.lines(),
                HasInOrder(Lines{"read settings.txt", "read users.txt",
                                 "send " + announcement(alice_id, "ALICE MEYER")}));
    EXPECT_THAT(frmMain.allusers.rows(), IsEmpty());
    EXPECT_THAT(alice.status_repaints, Contains("Checking for users ..."));
}

} // namespace
