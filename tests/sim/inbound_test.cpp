#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class Inbound : public TwoPeople {
protected:
    void hear(std::string_view datagram)
    {
        office.segment.inject_to("ROOM12", datagram);
        office.settle();
    }

    void expect_no_trace()
    {
        EXPECT_THAT(alice.log(), SizeIs(1));
        EXPECT_THAT(alice.sound.played, IsEmpty());
        EXPECT_EQ(alice.history().count(), 0);
        EXPECT_EQ(frmMain.pucount.caption(), "10");
        EXPECT_FALSE(alice.popup(0).window.visible());
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

TEST_F(Inbound, AMessageForSomebodyElseLeavesNoTrace)
{
    hear(message(bob_id, carl_id, "Bob> Hello"));

    expect_no_trace();
}

TEST_F(Inbound, TheOwnMessageToAllIsDropped)
{
    hear(message(alice_id, "[ALL]", "Alice Meyer> (To All) Hello"));

    expect_no_trace();
}

TEST_F(Inbound, TheOwnMessageToAllIsShownWhenItsOptionSaysSo)
{
    settings.myown.set(1);

    hear(message(alice_id, "[ALL]", "Alice Meyer> (To All) Hello"));

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.messagefrom.caption(), "Alice Meyer");
}

TEST_F(Inbound, AMessageFromOneselfToOneselfIsDropped)
{
    settings.myown.set(1);

    hear(message(alice_id, alice_id, "Alice Meyer> Hello"));

    expect_no_trace();
}

TEST_F(Inbound, IdentitiesAreComparedByteForByte)
{
    hear(message(bob_id, "[room12\\alice]", "Bob> Hello"));
    hear(message(bob_id, "[all]", "Bob> Hello"));

    expect_no_trace();
}

TEST_F(Inbound, OpeningBracketsAreNeverTested)
{
    hear("ab][ROOM12\\ALICE]x");

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.message.text(), "x");
    EXPECT_EQ(popup.messagefrom.caption(), "Ab]");
}

TEST_F(Inbound, TwoBracketsInAForeignTextReachTheFilterOnly)
{
    hear("ab]cd]ef");

    expect_no_trace();
}

TEST_F(Inbound, BracketsAndEqualSignsInTheBodyAreCarriedWhole)
{
    hear(message(bob_id, alice_id, "Bob> a]b=c[d]> e"));

    EXPECT_EQ(popup.message.text(), "Bob> a]b=c[d]> e");
}

TEST_F(Inbound, ABodyMayBeEmpty)
{
    hear(message(bob_id, alice_id, ""));

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.message.text(), "");
    EXPECT_EQ(alice.history().row(1).at(5), "");
}

TEST_F(Inbound, AnUnknownSenderIsShownByItsIdentity)
{
    hear(message("[ROOM55\\DORA]", alice_id, "Dora> Hello"));

    EXPECT_EQ(popup.messagefrom.caption(), "[Room55\\dora]");
    EXPECT_THAT(alice.log().back(), HasSubstr("Msg from [ROOM55\\DORA]\t\r\n"));
    EXPECT_EQ(alice.history().row(1).at(3), "[Room55\\dora]");
}

TEST_F(Inbound, TheNameComesFromTheOwnDirectoryNotFromTheMessage)
{
    hear(message(bob_id, alice_id, "Somebody Else> Hello"));

    EXPECT_EQ(popup.messagefrom.caption(), "Bob");
    EXPECT_EQ(popup.message.text(), "Somebody Else> Hello");
}

TEST_F(Inbound, TheNameIsThatOfTheFirstRowThatHoldsTheSenderAnywhere)
{
    frmMain.userlist.add("[AAA\\XY]=FIRST");

    hear(message("XY]", alice_id, "Hello"));
    EXPECT_EQ(popup.messagefrom.caption(), "First");

    frmMain.userlist.add("[AA\\B]=[ROOM07\\BOB] THE FAKE");
    hear(message(bob_id, alice_id, "Bob> Hello"));
    EXPECT_EQ(alice.popup(1).messagefrom.caption(), "[Room07\\bob] The Fake");
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

TEST_F(Inbound, NothingGoesBackToTheSender)
{
    office.segment.forget();

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(office.segment.texts_from("ROOM12"), IsEmpty());
}

TEST_F(Inbound, AnAbsentPersonSeesNothing)
{
    frmMain.away.set(1);

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(alice.sound.played, IsEmpty());
    EXPECT_FALSE(popup.window.visible());
    EXPECT_THAT(alice.log(), Not(Contains(HasSubstr("Msg from"))));
    EXPECT_EQ(frmMain.busy, "ok");
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

} // namespace
