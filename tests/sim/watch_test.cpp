#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using platform::Answer;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class Watch : public TwoPeople {
protected:
    /// Takes the network away and lets a send find out.
    void lose_the_network()
    {
        alice.unplug();
        alice.boxes.will_answer(Answer::ok);
        alice.person.send_to("Bob", "Hello?");
        office.segment.forget();
    }

    /// Lets the watch tick once.
    void tick_once()
    {
        alice.enter([this] { frmMain.Timer1.tick.run(); });
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(Watch, PutsNameAndStateInTheTitleAndTheStatusLine)
{
    office.run_for(watch);

    EXPECT_EQ(frmMain.window.caption, "Vexlo - Alice Meyer Listening");
    EXPECT_EQ(frmMain.statustext.caption(), "Vexlo - Alice Meyer Listening");
}

TEST_F(Watch, AnyOtherStatusLastsUntilItsNextTick)
{
    for (std::string const status :
         {"Message sent to Bob", "Network error", "Network Error.", ""}) {
        frmMain.statustext.set_caption(status);
        office.segment.forget();

        office.run_for(watch);

        EXPECT_EQ(frmMain.statustext.caption(), "Vexlo - Alice Meyer Listening") << status;
        EXPECT_THAT(office.segment.texts(), IsEmpty()) << status;
    }
}

TEST_F(Watch, TicksEveryFiveSeconds)
{
    office.run_for(watch);
    frmMain.statustext.set_caption("Hello");

    office.run_for(watch - 1ms - (office.scheduler.now() % watch));
    EXPECT_EQ(frmMain.statustext.caption(), "Hello");

    office.run_for(1ms);
    EXPECT_NE(frmMain.statustext.caption(), "Hello");
}

TEST_F(Watch, KeepsAHiddenProgramHidden)
{
    alice.person.click(frmMain.spotmin);
    frmMain.window.show();

    office.run_for(watch);

    EXPECT_FALSE(frmMain.window.visible());
}

TEST_F(Watch, LeavesAProgramThatIsBackOnTheScreen)
{
    alice.person.click(frmMain.spotmin);
    frmMain.minimized = "no";
    frmMain.window.show();

    office.run_for(watch);

    EXPECT_TRUE(frmMain.window.visible());
}

TEST_F(Watch, HidesAHiddenProgramBeforeItProbes)
{
    frmMain.statustext.set_caption("Network Error");
    frmMain.minimized = "yes";
    bool visible = true;
    frmMain.getusers.attach([&] { visible = frmMain.window.visible(); });

    tick_once();

    EXPECT_FALSE(visible);
}

TEST_F(Watch, ShowsTheStateOfAClosedSocket)
{
    alice.listening.close();

    office.run_for(watch);

    EXPECT_EQ(frmMain.window.caption, "Vexlo - Alice Meyer Closed");
}

TEST_F(Watch, ProbesALostNetworkWithOneBlank)
{
    frmMain.statustext.set_caption("Network Error");

    tick_once();

    EXPECT_THAT(office.segment.texts(), ElementsAre(" ", announcement(alice_id, "ALICE MEYER")));
}

TEST_F(Watch, AReturnedNetworkIsLoggedAndShowsTheTitleAtOnce)
{
    frmMain.statustext.set_caption("Network Error");
    frmMain.allusers.enabled = false;
    frmMain.List1.enabled = false;
    Lines seen;
    frmMain.statustext.changed.attach([&] { seen.push_back(frmMain.statustext.caption()); });

    tick_once();

    EXPECT_THAT(seen, ElementsAre("Network restored", "Vexlo - Alice Meyer Listening"));
    EXPECT_EQ(alice.log().back(), logged("Network Connection Restored"));
    EXPECT_THAT(alice.files.content("logs/logtemp.txt"), HasSubstr("Network Connection Restored"));
    EXPECT_TRUE(frmMain.allusers.enabled);
    EXPECT_TRUE(frmMain.List1.enabled);
}

TEST_F(Watch, AReturnIsToldBeforeItsRound)
{
    frmMain.statustext.set_caption("Network Error");
    std::string status;
    frmMain.getusers.attach([&] { status = frmMain.statustext.caption(); });

    tick_once();

    EXPECT_EQ(status, "Network restored");
}

TEST_F(Watch, ANetworkThatIsBackIsFoundWithinFiveSeconds)
{
    lose_the_network();
    office.run_for(12s);
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");

    alice.plug_in();
    office.run_for(watch);

    EXPECT_THAT(office.segment.texts(), Contains(announcement(alice_id, "ALICE MEYER")));
    EXPECT_EQ(frmMain.statustext.caption(), "Vexlo - Alice Meyer Listening");
}

TEST_F(Watch, ANetworkThatStaysAwayIsLoggedAtEachTick)
{
    lose_the_network();
    auto const rows = alice.log().size();

    tick_once();
    tick_once();

    EXPECT_THAT(alice.log(), SizeIs(rows + 2));
    EXPECT_EQ(alice.log().back(), logged("Network Error No route to host."));
    EXPECT_EQ(alice.files.content("logs/logtemp.txt"), sim::lines(alice.log()));
    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_THAT(alice.boxes.shown(), SizeIs(1));
}

TEST_F(Watch, OnlyAFailedProbeDisablesTheLists)
{
    lose_the_network();
    EXPECT_TRUE(frmMain.allusers.enabled);
    EXPECT_TRUE(frmMain.List1.enabled);

    tick_once();

    EXPECT_FALSE(frmMain.allusers.enabled);
    EXPECT_FALSE(frmMain.List1.enabled);
}

TEST_F(Watch, ATickThatFindsNoNetworkDoesNotTouchTheTitle)
{
    lose_the_network();
    frmMain.window.caption = "as it was";

    tick_once();

    EXPECT_EQ(frmMain.window.caption, "as it was");
}

TEST_F(Watch, AFailedProbeShowsTheWindowEvenInTheTray)
{
    lose_the_network();
    alice.person.click(frmMain.spotmin);

    tick_once();
    EXPECT_TRUE(frmMain.window.visible());

    alice.plug_in();
    tick_once();
    EXPECT_FALSE(frmMain.window.visible());
}

TEST_F(Watch, ATakenAddressAtTheProbeEndsTheProgram)
{
    frmMain.statustext.set_caption("Network Error");
    alice.host.send_failure = text::Failure(text::address_in_use, 98, "send");
    alice.process.arguments = "/m"; // No exception for a silent start here.
    alice.boxes.will_answer(Answer::ok).meanwhile([&] { EXPECT_EQ(frmMain.boxopen.value(), 1); });

    tick_once();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4112 is in use."));
    EXPECT_EQ(alice.status(), 0);
    EXPECT_EQ(alice.report(), "");
}

TEST_F(Watch, AnyTakenPlaceBehindTheProbeEndsTheProgram)
{
    // The handler reads which socket was bound last, not what has failed.
    frmMain.statustext.set_caption("Network Error");
    frmMain.cleanlog.attach([] { throw text::Failure(text::address_in_use, 98, "log"); });
    alice.boxes.will_answer(Answer::ok);

    tick_once();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4112 is in use."));
    EXPECT_EQ(alice.status(), 0);
}

TEST_F(Watch, AnyOtherFailureAtTheProbeKeepsTheNetworkDownWithoutAWord)
{
    frmMain.statustext.set_caption("Network Error");
    alice.host.send_failure = text::Failure("Operation not permitted", 1, "send");
    auto const log = alice.log();

    tick_once();

    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_EQ(alice.log(), log);
    EXPECT_TRUE(frmMain.allusers.enabled);
    EXPECT_TRUE(alice.running());
}

TEST_F(Watch, AReturnThatCannotBeLoggedOnDiskLeavesTheNetworkDown)
{
    frmMain.statustext.set_caption("Network Error");
    frmMain.allusers.enabled = false;
    alice.files.unwritable = {"logs/logtemp.txt"};

    tick_once();

    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_FALSE(frmMain.allusers.enabled);
}

TEST_F(Watch, ALossThatCannotBeLoggedOnDiskEndsTheProgramWithItsReport)
{
    lose_the_network();
    alice.files.unwritable = {"logs/logtemp.txt"};

    tick_once();

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(Watch, ALostLinkIsNotNoticedUntilSomethingIsSent)
{
    alice.unplug();

    office.run_for(1min);

    EXPECT_EQ(frmMain.statustext.caption(), "Vexlo - Alice Meyer Listening");
}

TEST_F(Watch, ACrashedProgramTicksNoMore)
{
    alice.crash();
    frmMain.statustext.set_caption("as it was");

    office.run_for(1min);

    EXPECT_EQ(frmMain.statustext.caption(), "as it was");
}

TEST_F(Watch, ATakenAddressIsToldByThePortOfTheSocketThatWasBoundLast)
{
    frmMain.statustext.set_caption("Network Error");
    frmMain.bindingsocket = "DiscoveryPort";
    alice.host.send_failure = text::Failure(text::address_in_use, 98, "send");
    alice.boxes.will_answer(Answer::ok);

    tick_once();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Port 4111 is in use."));
}

TEST_F(Watch, ATakenAddressOfNoKnownSocketKeepsTheNetworkDown)
{
    frmMain.statustext.set_caption("Network Error");
    frmMain.bindingsocket = "SomethingElse";
    alice.host.send_failure = text::Failure(text::address_in_use, 98, "send");

    tick_once();

    EXPECT_EQ(frmMain.statustext.caption(), "Network Error");
    EXPECT_TRUE(alice.running());
}

} // namespace
