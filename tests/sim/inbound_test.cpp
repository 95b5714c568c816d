#include "flows.h"

namespace {

using namespace flows;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class Inbound : public TwoPeople {
protected:
    void hear(std::string_view datagram)
    {
        office.segment.inject_to("ROOM12", datagram);
        office.settle();
    }

    forms::FrmMain& frmMain = alice.frmMain();
    forms::Settings& settings = alice.settings();
    forms::Popup& popup = alice.popup(0);
};

TEST_F(Inbound, APersonTypesALineAndItPopsUpAtTheOther)
{
    bob.person.send_to("Alice Meyer", "Lunch at noon?");
    office.settle();

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.message.text(), "BOB> Lunch at noon?");
    EXPECT_EQ(popup.messagefrom.caption(), "Bob");
    EXPECT_EQ(popup.window.caption, "Bob Msg 03:15 pm");
    EXPECT_EQ(popup.punumber, "0");
}

TEST_F(Inbound, ABodyMayBeEmpty)
{
    hear(message(bob_id, alice_id, ""));

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.message.text(), "");
    EXPECT_EQ(alice.history().row(1).at(5), "");
}

TEST_F(Inbound, TheLogShowsTheNameInUpperCase)
{
    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(alice.log(),
                ElementsAre(testing::_, logged("Msg from BOB\t\r\nBob> Hello\r\n---")));
    EXPECT_EQ(alice.files.content("logs/logtemp.txt"),
              alice.log().at(0) + "\r\n" + alice.log().at(1) + "\r\n");
}

TEST_F(Inbound, TheHistoryShowsTheMessageInItsColumns)
{
    hear(message(bob_id, alice_id, "Bob> Lunch> at noon?"));

    ASSERT_EQ(alice.history().count(), 1);
    auto row = alice.history().row(1);
    EXPECT_THAT(row.at(0), testing::StartsWith("20261115151"));
    EXPECT_EQ(row.at(0).size(), 14U);
    row.at(0).clear();
    EXPECT_THAT(row, ElementsAre("", "11/15/26 03:15 pm", "From", "Bob", "Bob>", "Lunch> at noon?",
                                 std::string(alice_id), "", "", "Bob Msg 03:15 pm"));
    EXPECT_EQ(alice.history().selected(), 1);
}

TEST_F(Inbound, WithoutANameInFrontTheHistoryLosesTheFirstCharacter)
{
    hear(message(bob_id, alice_id, "Lunch at noon?"));

    EXPECT_EQ(alice.history().row(1).at(4), "");
    EXPECT_EQ(alice.history().row(1).at(5), "unch at noon?");
    EXPECT_EQ(popup.message.text(), "Lunch at noon?");
    EXPECT_THAT(alice.log().back(), HasSubstr("\r\nLunch at noon?\r\n---"));
}

TEST_F(Inbound, TheSoundIsPlayed)
{
    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(alice.sound.played, ElementsAre("/home/alice/vexlo/vexlo.wav"));
}

TEST_F(Inbound, TheSoundIsPlayedOnlyWhenItIsOn)
{
    frmMain.Check2.set(0);

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(alice.sound.played, IsEmpty());
    EXPECT_TRUE(popup.window.visible());
}

TEST_F(Inbound, AMessageToAllSaysSo)
{
    hear(message(bob_id, "[ALL]", "Bob> (To All) Hello"));

    EXPECT_EQ(popup.Label3.caption(), "(Sent to ALL)");
    EXPECT_EQ(popup.Check1.value(), 0);
    EXPECT_EQ(alice.history().row(1).at(6), "[ALL]");
}

TEST_F(Inbound, ADirectMessageSaysNothingOfAll)
{
    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_EQ(popup.Label3.caption(), "");
}

TEST_F(Inbound, AMessageToAUserCalledAllSaysNothingOfAll)
{
    frmMain.user = "[ROOM12\\ALL]";

    hear(message(bob_id, frmMain.user, "Bob> Hello"));

    EXPECT_TRUE(alice.popup(0).window.visible());
    EXPECT_EQ(alice.popup(0).Label3.caption(), "");
}

TEST_F(Inbound, ReplyToAllIsTickedForADirectMessageToo)
{
    settings.replytoall.set(1);

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_EQ(popup.Check1.value(), 1);
}

TEST_F(Inbound, TheReplyBoxIsEmptyAtFirst)
{
    popup.temp.set_text("half a reply");

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_EQ(popup.temp.text(), "");
}

TEST_F(Inbound, ThePopupIsColouredBeforeItIsShown)
{
    Lines seen;
    popup.colourmessage.attach([&] { seen.push_back("coloured " + popup.message.text()); });
    popup.window.shown.attach([&] { seen.push_back("shown"); });

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(seen, ElementsAre("coloured Bob> Hello", "shown"));
}

TEST_F(Inbound, TheHistoryIsRefreshedBehindEachMessage)
{
    int refreshed = 0;
    alice.forms().historyfrm.historyrefresh.attach([&] {
        ++refreshed;
        EXPECT_EQ(alice.history().count(), refreshed);
    });

    hear(message(bob_id, alice_id, "Bob> One"));
    hear(message(bob_id, alice_id, "Bob> Two"));

    EXPECT_EQ(refreshed, 2);
    EXPECT_EQ(alice.history().selected(), 2);
}

TEST_F(Inbound, TwoMessagesInOneSecondOpenTwoPopups)
{
    office.segment.inject_to("ROOM12", message(bob_id, alice_id, "Bob> One"));
    office.segment.inject_to("ROOM12", message(bob_id, alice_id, "Bob> Two"));
    office.settle();

    EXPECT_EQ(popup.message.text(), "Bob> One");
    EXPECT_EQ(alice.popup(1).message.text(), "Bob> Two");
    EXPECT_EQ(frmMain.popups.row(8).substr(12), "popup0");
    EXPECT_EQ(frmMain.popups.row(9).substr(12), "popup1");
    EXPECT_EQ(frmMain.popups.row(8).substr(0, 12), frmMain.popups.row(9).substr(0, 12));
}

TEST_F(Inbound, ASoundThatFailsIsSkipped)
{
    frmMain.playsound.attach([] { throw text::Failure("No sound card", 1, "sound"); });

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(alice.history().count(), 1);
}

TEST_F(Inbound, AStepThatFailsInThePopupIsSkipped)
{
    popup.colourmessage.attach([] { throw text::Failure("No colours", 1, "popup"); });

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(frmMain.pucount.caption(), "9");
}

TEST_F(Inbound, AHistoryThatFailsIsSkipped)
{
    alice.forms().historyfrm.historyrefresh.attach(
        [] { throw text::Failure("No list", 1, "history"); });

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_EQ(frmMain.pucount.caption(), "9");
    EXPECT_EQ(frmMain.busy, "ok");
    EXPECT_THAT(frmMain.cue, IsEmpty());
}

TEST_F(Inbound, PopupLogAndHistoryAgreeOnALongMessage)
{
    std::string const text(3000, 'y');

    hear(message(bob_id, alice_id, "Bob> " + text));

    EXPECT_EQ(popup.message.text(), "Bob> " + text);
    EXPECT_EQ(alice.history().row(1).at(5), text);
    EXPECT_THAT(alice.log().back(), HasSubstr(text));
}

TEST_F(Inbound, TheDeliveryGoesInItsOrder)
{
    Lines seen;
    auto const note = [&](std::string const& step) {
        seen.push_back(step + ": " + std::to_string(alice.log().size()) + " log rows, " +
                       std::to_string(alice.history().count()) + " history rows");
    };
    frmMain.playsound.attach([&] { note("sound"); });
    popup.window.shown.attach([&] { note("popup"); });
    alice.forms().historyfrm.historyrefresh.attach([&] { note("refresh"); });
    frmMain.cleanlog.attach([&] { note("log trim"); });

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(seen, ElementsAre("sound: 1 log rows, 0 history rows",
                                  "popup: 2 log rows, 0 history rows",
                                  "refresh: 2 log rows, 1 history rows",
                                  "log trim: 2 log rows, 1 history rows"));
}

TEST_F(Inbound, TheFreeSlotsAreCountedBeforeAndBehindThePopup)
{
    Lines counts;
    frmMain.pucount.changed.attach([&] { counts.push_back(frmMain.pucount.caption()); });

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(counts, ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "0",
                                    "1", "2", "3", "4", "5", "6", "7", "8", "9"));
}

} // namespace
