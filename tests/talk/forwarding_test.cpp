#include "tests/talk/talk.h"

namespace {

using namespace talk;
using sim::Person;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// Bob has written to Alice, and she forwards it.
class Forwarding : public Talk {
protected:
    static constexpr std::string_view cover = "Begin forwarded message:\r\nBOB> lunch?\r\n"
                                              "ALICE MEYER> I'm forwarding this to you.";

    void receive_and_forward(std::string_view body = "BOB> lunch?")
    {
        hear(body);
        alice.person.click(popup, popup.fwd);
    }
    [[nodiscard]] std::vector<bool> enabled_buttons() const
    {
        std::vector<bool> enabled;
        for (std::size_t number = 1; number <= 12; ++number) {
            enabled.push_back(frmMain.qb.at(number).enabled);
        }
        return enabled;
    }
    [[nodiscard]] std::vector<bool> captioned_buttons() const
    {
        std::vector<bool> captioned;
        for (std::size_t number = 1; number <= 12; ++number) {
            captioned.push_back(!frmMain.qb.at(number).caption.empty());
        }
        return captioned;
    }

    forms::Popup& popup = alice.popup(0);
    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(Forwarding, PutsTheMessageIntoTheComposeBoxWithItsCover)
{
    receive_and_forward();

    EXPECT_EQ(frmMain.messagetext.text(), cover);
    EXPECT_EQ(frmMain.fwd.value(), 1);
    EXPECT_EQ(frmMain.fwd.caption, "BOB");
}

TEST_F(Forwarding, ClosesThePopupAndFreesItsSlot)
{
    hear("BOB> (To All) cake!", bob_id, "[ALL]");
    popup.Check1.set(1);

    alice.person.click(popup, popup.fwd);

    EXPECT_FALSE(popup.window.visible());
    EXPECT_EQ(popup.message.text() + popup.Label3.caption() + popup.response, "");
    EXPECT_EQ(popup.Check1.value(), 0);
    EXPECT_EQ(frmMain.pucount.caption(), "10");
}

TEST_F(Forwarding, BringsTheMainWindowUp)
{
    hear("BOB> lunch?");
    alice.person.click(frmMain.spotmin);

    alice.person.click(popup, popup.fwd);

    EXPECT_TRUE(frmMain.window.visible());
    EXPECT_EQ(frmMain.window.state, controls::Window::State::normal);
    EXPECT_EQ(frmMain.minimized, "no");
}

TEST_F(Forwarding, SwitchesTheQuickButtonsOff)
{
    receive_and_forward();

    EXPECT_THAT(enabled_buttons(), Each(false));
}

TEST_F(Forwarding, TakesTheWholeTextHoweverLong)
{
    std::string const text = "BOB> " + std::string(2000, 'm');

    receive_and_forward(text);

    EXPECT_THAT(frmMain.messagetext.text(), StartsWith("Begin forwarded message:\r\n" + text));
    EXPECT_EQ(frmMain.Label5.caption(), "Message length exceeded");
    EXPECT_TRUE(frmMain.Label5.visible);
}

TEST_F(Forwarding, YetCutsTheReplyThatStaysBehind)
{
    hear("BOB> lunch?");
    popup.temp.set_text(std::string(980, 'r'));

    alice.person.click(popup, popup.fwd);

    EXPECT_EQ(popup.temp.text(), std::string(970, 'r'));
}

TEST_F(Forwarding, OfANineHundredAndSeventyCharacterMessageIsTooLong)
{
    receive_and_forward("BOB> " + std::string(965, 'm'));

    EXPECT_EQ(frmMain.Label5.caption(), "Message length exceeded");
}

TEST_F(Forwarding, SwitchesAutoRespondOffAsTypingDoes)
{
    hear("BOB> lunch?");
    alice.person.choose(alice.forms().menuform.autores, 0);

    alice.person.click(popup, popup.fwd);

    EXPECT_EQ(frmMain.away.value(), 0);
}

TEST_F(Forwarding, GoesOutUnderTheFirstSendersIdentityAndName)
{
    receive_and_forward();
    alice.person.pick("Carl Dunn");

    alice.person.click(frmMain.sendbtn);
    office.settle();

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(bob_id, carl_id, "BOB> " + std::string(cover))));
    EXPECT_EQ(carl.popup(0).messagefrom.caption(), "Bob");
}

TEST_F(Forwarding, StandsInTheLogWithAWordOfItsOwn)
{
    receive_and_forward();
    alice.person.pick("Carl Dunn");

    alice.person.click(frmMain.sendbtn);

    EXPECT_EQ(alice.log().back(), logged("Fwd to   CARL DUNN", cover));
    EXPECT_THAT(told(alice.history()).back(), StartsWith("To|Carl Dunn|Begin forwarded message:"));
}

TEST_F(Forwarding, EndsWithTheSendToUsers)
{
    receive_and_forward();
    alice.person.pick({"Carl Dunn", "Bob"});

    alice.person.click(frmMain.sendbtn);

    EXPECT_EQ(frmMain.fwd.value(), 0);
    EXPECT_EQ(enabled_buttons(), captioned_buttons());
    EXPECT_THAT(enabled_buttons(), testing::Contains(true));
    EXPECT_THAT(enabled_buttons(), testing::Contains(false));
}

TEST_F(Forwarding, IsGivenUpByTheClearButton)
{
    receive_and_forward();

    alice.person.click(frmMain.Command3);

    EXPECT_EQ(frmMain.messagetext.text(), "");
    EXPECT_EQ(frmMain.fwd.value(), 0);
    EXPECT_EQ(enabled_buttons(), captioned_buttons());
}

TEST_F(Forwarding, StaysOnBehindASendToAll)
{
    receive_and_forward();
    alice.person.tick_all();

    alice.person.click(frmMain.sendbtn);

    EXPECT_THAT(
        sent_by(alice),
        ElementsAre(datagram(alice_id, "[ALL]", "ALICE MEYER> (To All) " + std::string(cover))));
    EXPECT_EQ(frmMain.fwd.value(), 1);
    EXPECT_THAT(enabled_buttons(), Each(false));
}

TEST_F(Forwarding, StaysOnBehindASendToAGroup)
{
    alice.forms().groups.group.at(0).add("Carl Dunn");
    frmMain.List1.clear();
    frmMain.List1.add("FRIENDS" + std::string(30, ' ') + "0");
    receive_and_forward();
    alice.person.open_tab(1);
    alice.person.pick_group("FRIENDS");

    alice.person.click(frmMain.sendbtn);

    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, carl_id, cover)));
    EXPECT_EQ(frmMain.fwd.value(), 1);
    EXPECT_THAT(enabled_buttons(), Each(false));
}

TEST_F(Forwarding, DoesNotCatchTheNextReplyFromAnotherPopup)
{
    hear("BOB> lunch?");
    hear("CARL DUNN> dinner?", carl_id);

    alice.person.click(alice.popup(0), alice.popup(0).fwd);
    alice.person.answer(alice.popup(1), "yes");

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, carl_id, "CARL DUNN> dinner?\r\nALICE MEYER> yes")));
}

TEST_F(Forwarding, NamesItsAddresseeUntilTheWindowIsHidden)
{
    hear("BOB> lunch?");
    std::string seen;
    popup.window.hidden.attach([&] { seen = popup.response; });

    alice.person.click(popup, popup.fwd);

    EXPECT_EQ(seen, "Bob");
    EXPECT_EQ(popup.response, "");
}

TEST_F(Forwarding, FromTheRecallWindowLeavesMessageAndSlotsAlone)
{
    auto& recalled = alice.forms().popuplast;
    hear("BOB> (To All) cake!", bob_id, "[ALL]");
    open_history();
    alice.person.double_click_history(1);
    recalled.Check1.set(1);

    alice.person.click(recalled, recalled.fwd);

    EXPECT_FALSE(recalled.window.visible());
    EXPECT_EQ(recalled.message.text(), "BOB> (To All) cake!");
    EXPECT_EQ(recalled.Label3.caption(), "(Sent to ALL)");
    EXPECT_EQ(recalled.Check1.value(), 1);
    EXPECT_EQ(recalled.response, "");
    EXPECT_EQ(frmMain.pucount.caption(), "9");
}

TEST_F(Forwarding, FromTheRecallWindowCanBeDoneAgain)
{
    auto& recalled = alice.forms().popuplast;
    hear("BOB> lunch?");
    open_history();
    alice.person.double_click_history(1);
    for (auto const* name : {"Carl Dunn", "Bob"}) {
        alice.person.click(recalled, recalled.fwd);
        EXPECT_EQ(frmMain.messagetext.text(), cover);
        alice.person.pick(name);
        alice.person.click(frmMain.sendbtn);
        alice.person.click(frmMain.recall);
        EXPECT_TRUE(recalled.window.visible());
    }

    EXPECT_THAT(sent_by(alice), ElementsAre(StartsWith("[ROOM07\\BOB][ROOM33\\CARL]"),
                                            StartsWith("[ROOM07\\BOB][ROOM07\\BOB]")));
}

TEST_F(Forwarding, OfAPeerNobodyKnowsGoesOutFromNobody)
{
    hear("ZOE> lunch?", "[ROOM99\\ZOE]");
    alice.person.click(popup, popup.fwd);
    alice.person.pick("Carl Dunn");

    alice.person.click(frmMain.sendbtn);

    EXPECT_EQ(frmMain.fwd.caption, "[ROOM99\\ZOE]");
    EXPECT_THAT(sent_by(alice), ElementsAre(StartsWith("[---][ROOM33\\CARL][ROOM99\\ZOE]> Begin")));
}

} // namespace
