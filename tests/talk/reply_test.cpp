#include "tests/talk/talk.h"

namespace {

using namespace talk;
using platform::Answer;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class Reply : public Talk {
protected:
    /// What the hand-over fields hold when the reply goes to be sent.
    struct HandOver {
        std::string text, reply, original, response;
    };

    /// Alice has a message of Bob's with this text, as long as needed, and answers it.
    HandOver hand_over(std::string_view message, std::string_view reply)
    {
        HandOver seen;
        popup.messagefrom.set_caption("Bob");
        popup.message.set_text(message);
        popup.temp.set_text(reply);
        alice.frmMain().cmdSend.attach([&] {
            seen = {frmMain.txtSendMessage.text(), frmMain.tempreply, frmMain.temprec,
                    popup.response};
        });
        alice.enter([&] { popup.Command2.click(); });
        return seen;
    }

    forms::Popup& popup = alice.popup(0);
    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(Reply, QuotesTheWholeConversationAndAddsItsOwnTurn)
{
    hear("ALICE MEYER> lunch?\r\nBOB> where?");

    alice.person.answer(popup, "here");

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, bob_id,
                                     "ALICE MEYER> lunch?\r\nBOB> where?\r\nALICE MEYER> here")));
}

TEST_F(Reply, ReachesTheOneItAnswersAndNobodyElse)
{
    bob.person.send_to("Alice Meyer", "lunch?");
    office.settle();

    alice.person.answer(popup, "yes");
    office.settle();

    EXPECT_EQ(bob.popup(0).message.text(), "BOB> lunch?\r\nALICE MEYER> yes");
    EXPECT_THAT(popups_on_show(bob), SizeIs(1));
    EXPECT_THAT(popups_on_show(carl), IsEmpty());
}

TEST_F(Reply, HandsOverTextReplyOriginalAndAddressee)
{
    auto const seen = hand_over("BOB> lunch?", "yes");

    EXPECT_EQ(seen.text, "BOB> lunch?\r\nALICE MEYER> yes");
    EXPECT_EQ(seen.reply, "yes");
    EXPECT_EQ(seen.original, "BOB> lunch?");
    EXPECT_EQ(seen.response, "Bob");
    EXPECT_EQ(popup.response, "");
}

TEST_F(Reply, QuotesAMessageThatJustFitsWhole)
{
    // 970, less two names, the reply, and nine.
    std::string const message(970 - 11 - 3 - 3 - 9, 'm');

    auto const seen = hand_over(message, "yes");

    EXPECT_EQ(seen.text, message + "\r\nALICE MEYER> yes");
}

TEST_F(Reply, PutsAHeaderBeforeTheTailOfALongerOne)
{
    std::string const message = "x" + std::string(970 - 11 - 3 - 3 - 9, 'm');

    auto const seen = hand_over(message, "yes");

    EXPECT_EQ(seen.text, "ALICE MEYER/Bob> ... " + message.substr(1) + "\r\nALICE MEYER> yes");
    EXPECT_EQ(seen.original, message);
}

TEST_F(Reply, KeepsTheLastEightHundredAndFiftyOneOfNineHundred)
{
    frmMain.friendlyname = "ALICE";
    popup.messagefrom.set_caption("Bobby");
    popup.message.set_text(std::string(49, 'x') + std::string(851, 'm'));
    popup.temp.set_text(std::string(100, 'r'));

    alice.enter([&] { popup.Command2.click(); });

    EXPECT_THAT(sent_by(alice), ElementsAre(HasSubstr("ALICE/Bobby> ... " + std::string(851, 'm') +
                                                      "\r\nALICE> " + std::string(100, 'r'))));
}

TEST_F(Reply, TakesATailByTheCountOfARoomBelowNought)
{
    // 970 less 970, two names and nine: 23 too many.
    auto const seen = hand_over(std::string(30, 'x') + std::string(23, 'm'), std::string(970, 'r'));

    EXPECT_EQ(seen.text, "ALICE MEYER/Bob> ... " + std::string(23, 'm') + "\r\nALICE MEYER> " +
                             std::string(970, 'r'));
}

TEST_F(Reply, TakesAllOfAMessageThatIsShorterThanSuchATail)
{
    auto const seen = hand_over("hi", std::string(970, 'r'));

    EXPECT_THAT(seen.text, testing::StartsWith("ALICE MEYER/Bob> ... hi\r\nALICE MEYER> rrr"));
}

TEST_F(Reply, HasAnEmptyTailWhereTheRoomIsNought)
{
    auto const seen = hand_over("BOB> lunch?", std::string(970 - 11 - 3 - 9, 'r'));

    EXPECT_THAT(seen.text, testing::StartsWith("ALICE MEYER/Bob> ... \r\nALICE MEYER> rrr"));
}

TEST_F(Reply, CountsALineEndOfTheMessageAsTwoCharacters)
{
    std::string const message = std::string(970 - 11 - 3 - 3 - 9 - 1, 'm') + "\r\n";

    auto const seen = hand_over(message, "yes");

    EXPECT_EQ(seen.text, "ALICE MEYER/Bob> ... " + message.substr(1) + "\r\nALICE MEYER> yes");
}

TEST_F(Reply, OfAThousandCharactersGoesOutCutToNineHundredAndSeventy)
{
    auto const seen = hand_over("", std::string(970, 'r') + std::string(30, 'x'));

    EXPECT_EQ(seen.reply, std::string(970, 'r'));
    EXPECT_EQ(popup.temp.text(), seen.reply);
    EXPECT_EQ(popup.Label1.caption(), "Response");
}

TEST_F(Reply, LeavesARowInTheLogUnderTheUpperCaseName)
{
    hear("BOB> lunch?");

    alice.person.answer(popup, "yes");

    EXPECT_EQ(alice.log().back(), logged("Msg to   BOB", "BOB> lunch?\r\nALICE MEYER> yes"));
    EXPECT_THAT(alice.files.content("logs/logtemp.txt"),
                testing::EndsWith("BOB> lunch?\r\nALICE MEYER> yes\r\n---\r\n"));
}

TEST_F(Reply, LeavesARowInTheHistoryWithQuestionAndAnswer)
{
    hear("BOB> lunch?\r\n> now?");

    alice.person.answer(popup, "yes");

    EXPECT_THAT(last_row(alice),
                ElementsAre("20261115151802", "11/15/26 03:18 pm", "Replied to", "Bob", "BOB>",
                            "lunch?\r\n> now?", "Bob", "yes", "", "Bob Msg 03:18 pm"));
    EXPECT_EQ(alice.history().selected(), 2);
    EXPECT_EQ(alice.forms().historyfrm.message.text(), "BOB> lunch?\r\n> now?\r\nALICE MEYER> yes");
}

TEST_F(Reply, LosesOneCharacterInTheHistoryWhereTheQuestionHasNoHead)
{
    hear("lunch?");

    alice.person.answer(popup, "yes");

    EXPECT_EQ(last_row(alice)[4], "");
    EXPECT_EQ(last_row(alice)[5], "unch?");
    EXPECT_THAT(sent_by(alice), ElementsAre(HasSubstr("]lunch?\r\n")));
}

TEST_F(Reply, IsToldInTheStatusLine)
{
    hear("BOB> lunch?");

    alice.person.answer(popup, "yes");

    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to Bob");
    EXPECT_TRUE(frmMain.txtSendMessage.empty());
}

TEST_F(Reply, ClosesThePopupAndFreesItsSlot)
{
    hear("BOB> (To All) cake!", bob_id, "[ALL]");
    popup.Check1.set(1);

    alice.person.answer(popup, "yes");

    EXPECT_FALSE(popup.window.visible());
    EXPECT_EQ(popup.message.text() + popup.Label3.caption() + popup.response, "");
    EXPECT_EQ(popup.Check1.value(), 0);
    EXPECT_EQ(frmMain.wins.row(0), "0");
    EXPECT_EQ(frmMain.pucount.caption(), "10");
    EXPECT_EQ(popup.temp.text(), "yes"); // The next message empties it.
}

TEST_F(Reply, FreesTheSlotOnlyWhenItIsOut)
{
    hear("BOB> lunch?");
    std::string free;
    frmMain.cmdSend.attach([&] { free = frmMain.pucount.caption(); });

    alice.person.answer(popup, "yes");

    EXPECT_EQ(free, "9");
    EXPECT_EQ(frmMain.pucount.caption(), "10");
}

TEST_F(Reply, SwitchesAutoRespondOff)
{
    hear("BOB> lunch?");
    alice.person.choose(alice.forms().menuform.autores, 1);

    alice.person.answer(popup, "yes");

    EXPECT_EQ(frmMain.away.value(), 0);
    EXPECT_TRUE(alice.forms().menuform.autores[4].checked);
    EXPECT_FALSE(alice.forms().menuform.autores[1].checked);
    EXPECT_FALSE(frmMain.Label5.visible);
}

TEST_F(Reply, GoesOutUnderTheIdentityOfThisMoment)
{
    hear("BOB> lunch?");
    alice.environment.variables["username"] = "alicia";

    alice.person.answer(popup, "yes");

    EXPECT_THAT(sent_by(alice), ElementsAre(testing::StartsWith("[ROOM12\\ALICIA][ROOM07\\BOB]")));
    EXPECT_EQ(frmMain.user, "[ROOM12\\ALICIA]");
}

TEST_F(Reply, IsFollowedByThePortResetWhereTheOptionSaysSo)
{
    hear("BOB> lunch?");
    alice.settings().resetports.set(1);
    std::string before;
    frmMain.Command6.attach(
        [&] { before = frmMain.statustext.caption() + "|" + frmMain.txtSendMessage.text(); });

    alice.person.answer(popup, "yes");

    EXPECT_EQ(before, "Message sent to Bob|");
}

TEST_F(Reply, ResetsNoPortsOtherwise)
{
    hear("BOB> lunch?");
    frmMain.Command6.attach([] { FAIL() << "nobody wants it"; });

    alice.person.answer(popup, "yes");
}

TEST_F(Reply, ToAPeerNobodyKnowsLeavesAndIsLost)
{
    hear("ZOE> lunch?", "[ROOM99\\ZOE]");
    ASSERT_EQ(popup.messagefrom.caption(), "[Room99\\zoe]");

    alice.person.answer(popup, "yes");

    EXPECT_THAT(sent_by(alice), ElementsAre(testing::StartsWith("[ROOM12\\ALICE][---]ZOE> ")));
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to [Room99\\zoe]");
    EXPECT_FALSE(popup.window.visible());
}

TEST_F(Reply, GoesToTheFirstWhoseNameEndsInTheSenders)
{
    frmMain.userlist.add("[AROOM\\BILLYBOB]=BILLYBOB");
    hear("BOB> lunch?");

    alice.person.answer(popup, "yes");

    EXPECT_THAT(sent_by(alice), ElementsAre(HasSubstr("][AROOM\\BILLYBOB]")));
}

} // namespace
