#include "tests/talk/talk.h"

namespace {

using namespace talk;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// Alice is away, and her program answers in her place.
class AutoRespond : public Talk {
protected:
    AutoRespond()
    {
        alice.sound.played.clear();
        alice.person.choose(alice.forms().menuform.autores, 0);
    }

    [[nodiscard]] static std::string answer(std::string_view body, std::string_view to = bob_id)
    {
        return datagram(alice_id, to,
                        std::string(body) + "\r\nALICE MEYER> (Auto Resp) I'm away from my desk");
    }
};

TEST_F(AutoRespond, QuotesTheMessageAndGoesBackToItsSender)
{
    hear("BOB> lunch?");

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("BOB> lunch?")));
}

TEST_F(AutoRespond, ComesAtTheNextTick)
{
    office.segment.inject_to(alice.host.name, datagram(bob_id, alice_id, "BOB> lunch?"));

    office.run_for(tick - sim::Duration(1));
    EXPECT_THAT(sent_by(alice), IsEmpty());
    office.run_for(sim::Segment::latency + sim::Duration(1));

    EXPECT_THAT(sent_by(alice), SizeIs(1));
}

TEST_F(AutoRespond, LeavesNothingOfTheMessageButOneRowInTheHistory)
{
    auto const log = alice.log();

    hear("BOB> lunch?");

    EXPECT_THAT(popups_on_show(alice), IsEmpty());
    EXPECT_THAT(alice.sound.played, IsEmpty());
    EXPECT_EQ(alice.log(), log);
    EXPECT_EQ(alice.history().count(), 1);
    EXPECT_EQ(alice.frmMain().busy, "ok");
    EXPECT_EQ(alice.frmMain().away.value(), 1);
}

TEST_F(AutoRespond, TellsQuestionAndResponseInItsRow)
{
    hear("BOB> lunch?\r\n> now?");

    EXPECT_THAT(last_row(alice), ElementsAre("20261115151802", "11/15/26 03:18 pm", "Auto Rep to",
                                             "Bob", "BOB>", "lunch?\r\n> now?", alice_id,
                                             "I'm away from my desk", "", " Msg 03:18 pm"));
}

TEST_F(AutoRespond, ShowsItsRowAsTheLastOfAHundred)
{
    for (int older = 0; older < 100; ++older) {
        alice.history().add(row_from("Carl Dunn", "CARL DUNN>", "older"));
    }

    hear("BOB> lunch?");

    EXPECT_EQ(alice.history().count(), 100);
    EXPECT_EQ(alice.history().selected(), 100);
    EXPECT_EQ(last_row(alice)[2], "Auto Rep to");
    EXPECT_EQ(alice.forms().historyfrm.message.text(),
              "BOB> lunch?\r\nALICE MEYER> I'm away from my desk");
}

TEST_F(AutoRespond, CallsThePartyByTheHeadOfTheTextAndNotByTheDirectory)
{
    hear("aNNA BERG> lunch?");

    EXPECT_EQ(last_row(alice)[3], "Anna Berg");
    EXPECT_EQ(last_row(alice)[4], "aNNA BERG>");
}

TEST_F(AutoRespond, HasNoPartyInTheRowOfATextWithoutAHead)
{
    hear("lunch?");

    EXPECT_EQ(last_row(alice)[3] + last_row(alice)[4], "");
    EXPECT_EQ(last_row(alice)[5], "unch?");
    EXPECT_THAT(sent_by(alice), ElementsAre(answer("lunch?")));
}

TEST_F(AutoRespond, AnswersAMessageToAllToItsSenderAlone)
{
    hear("BOB> (To All) cake!", bob_id, "[ALL]");

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("BOB> (To All) cake!")));
    EXPECT_EQ(last_row(alice)[6], "[ALL]");
}

TEST_F(AutoRespond, AnswersAPeerNobodyKnows)
{
    hear("ZOE> lunch?", "[ROOM99\\ZOE]");

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("ZOE> lunch?", "[ROOM99\\ZOE]")));
}

TEST_F(AutoRespond, SaysNothingToTheUsersOwnBroadcast)
{
    alice.settings().myown.set(1);

    hear("ALICE MEYER> (To All) cake!", alice_id, "[ALL]");

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_TRUE(alice.history().empty());
    EXPECT_THAT(popups_on_show(alice), IsEmpty());
}

TEST_F(AutoRespond, SaysNothingToAMessageForSomebodyElse)
{
    hear("BOB> lunch?", bob_id, carl_id);

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_TRUE(alice.history().empty());
}

TEST_F(AutoRespond, SaysNothingToAMarkedAnswerAndKeepsNoRow)
{
    hear(":RE: BOB> lunch?\r\nCARL DUNN> (Auto Resp) no");

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_TRUE(alice.history().empty());

    alice.person.choose(alice.forms().menuform.autores, 4);
    hear(":RE: BOB> lunch?");

    EXPECT_EQ(alice.popup(0).message.text(), ":RE: BOB> lunch?");
}

TEST_F(AutoRespond, NeverMarksItsAnswerWhateverTheBodyBeginsWith)
{
    Texts const bodies{"re: lunch?", "RE: lunch?", "Re:", ":RE", ":re: lunch?", " :RE: lunch?"};
    for (std::string const& body : bodies) {
        office.segment.forget();
        hear(body);

        EXPECT_THAT(sent_by(alice), ElementsAre(answer(body)));
    }
}

TEST_F(AutoRespond, IsSentEvenWhenItIsEmpty)
{
    alice.settings().autorespond.set_text("");

    hear("BOB> lunch?");

    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, bob_id,
                                                     "BOB> lunch?\r\nALICE MEYER> (Auto Resp) ")));
    EXPECT_EQ(last_row(alice)[7], "");
}

TEST_F(AutoRespond, IsTheOneThatWasChosenHoweverTheStoredOneChanges)
{
    alice.settings().ar[0].set_text("I have left the country");

    hear("BOB> lunch?");

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("BOB> lunch?")));
}

TEST_F(AutoRespond, IsNeverCut)
{
    std::string const body = "BOB> " + std::string(5000, 'm');

    hear(body);

    EXPECT_THAT(sent_by(alice), ElementsAre(answer(body)));
}

TEST_F(AutoRespond, GoesOutUnderTheIdentityOfTheLastSend)
{
    alice.environment.variables["username"] = "alicia";

    hear("BOB> lunch?");

    EXPECT_THAT(sent_by(alice), ElementsAre(answer("BOB> lunch?")));
}

TEST_F(AutoRespond, ThatTheNetworkRefusesIsSkippedWithoutAWord)
{
    auto const log = alice.log();
    auto const status = alice.frmMain().statustext.caption();
    alice.host.send_failure = text::Failure(text::no_route_to_host, 113, "send");

    hear("BOB> lunch?");

    EXPECT_EQ(last_row(alice)[2], "Auto Rep to");
    EXPECT_EQ(alice.log(), log);
    EXPECT_EQ(alice.frmMain().statustext.caption(), status);
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_TRUE(alice.running());
}

TEST_F(AutoRespond, ReachesAPersonLikeAnyMessage)
{
    bob.person.send_to("Alice Meyer", "lunch?");
    office.settle();

    EXPECT_EQ(bob.popup(0).messagefrom.caption(), "Alice Meyer");
    EXPECT_EQ(bob.popup(0).message.text(),
              "BOB> lunch?\r\nALICE MEYER> (Auto Resp) I'm away from my desk");
    EXPECT_THAT(sent_by(bob), SizeIs(1));
    EXPECT_THAT(alice.log(), Not(Contains(HasSubstr("Msg"))));
}

} // namespace
