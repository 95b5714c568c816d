#include "flows.h"

namespace {

using namespace flows;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class InboundFilter : public TwoPeople {
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

TEST_F(InboundFilter, AMessageForSomebodyElseLeavesNoTrace)
{
    hear(message(bob_id, carl_id, "Bob> Hello"));

    expect_no_trace();
}

TEST_F(InboundFilter, TheOwnMessageToAllIsDropped)
{
    hear(message(alice_id, "[ALL]", "Alice Meyer> (To All) Hello"));

    expect_no_trace();
}

TEST_F(InboundFilter, TheOwnMessageToAllIsShownWhenItsOptionSaysSo)
{
    settings.myown.set(1);

    hear(message(alice_id, "[ALL]", "Alice Meyer> (To All) Hello"));

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.messagefrom.caption(), "Alice Meyer");
}

TEST_F(InboundFilter, AMessageFromOneselfToOneselfIsDropped)
{
    settings.myown.set(1);

    hear(message(alice_id, alice_id, "Alice Meyer> Hello"));

    expect_no_trace();
}

TEST_F(InboundFilter, IdentitiesAreComparedByteForByte)
{
    hear(message(bob_id, "[room12\\alice]", "Bob> Hello"));
    hear(message(bob_id, "[all]", "Bob> Hello"));

    expect_no_trace();
}

TEST_F(InboundFilter, OpeningBracketsAreNeverTested)
{
    hear("ab][ROOM12\\ALICE]x");

    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.message.text(), "x");
    EXPECT_EQ(popup.messagefrom.caption(), "Ab]");
}

TEST_F(InboundFilter, TwoBracketsInAForeignTextReachTheFilterOnly)
{
    hear("ab]cd]ef");

    expect_no_trace();
}

TEST_F(InboundFilter, BracketsAndEqualSignsInTheBodyAreCarriedWhole)
{
    hear(message(bob_id, alice_id, "Bob> a]b=c[d]> e"));

    EXPECT_EQ(popup.message.text(), "Bob> a]b=c[d]> e");
}

TEST_F(InboundFilter, AnUnknownSenderIsShownByItsIdentity)
{
    hear(message("[ROOM55\\DORA]", alice_id, "Dora> Hello"));

    EXPECT_EQ(popup.messagefrom.caption(), "[Room55\\dora]");
    EXPECT_THAT(alice.log().back(), HasSubstr("Msg from [ROOM55\\DORA]\t\r\n"));
    EXPECT_EQ(alice.history().row(1).at(3), "[Room55\\dora]");
}

TEST_F(InboundFilter, TheNameComesFromTheOwnDirectoryNotFromTheMessage)
{
    hear(message(bob_id, alice_id, "Somebody Else> Hello"));

    EXPECT_EQ(popup.messagefrom.caption(), "Bob");
    EXPECT_EQ(popup.message.text(), "Somebody Else> Hello");
}

TEST_F(InboundFilter, TheNameIsThatOfTheFirstRowThatHoldsTheSenderAnywhere)
{
    frmMain.userlist.add("[AAA\\XY]=FIRST");

    hear(message("XY]", alice_id, "Hello"));
    EXPECT_EQ(popup.messagefrom.caption(), "First");

    frmMain.userlist.add("[AA\\B]=[ROOM07\\BOB] THE FAKE");
    hear(message(bob_id, alice_id, "Bob> Hello"));
    EXPECT_EQ(alice.popup(1).messagefrom.caption(), "[Room07\\bob] The Fake");
}

TEST_F(InboundFilter, NothingGoesBackToTheSender)
{
    office.segment.forget();

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(office.segment.texts_from("ROOM12"), IsEmpty());
}

TEST_F(InboundFilter, AnAbsentPersonSeesNothing)
{
    frmMain.away.set(1);

    hear(message(bob_id, alice_id, "Bob> Hello"));

    EXPECT_THAT(alice.sound.played, IsEmpty());
    EXPECT_FALSE(popup.window.visible());
    EXPECT_THAT(alice.log(), Not(Contains(HasSubstr("Msg from"))));
    EXPECT_EQ(frmMain.busy, "ok");
}

} // namespace
