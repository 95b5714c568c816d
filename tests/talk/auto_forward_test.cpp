#include "tests/talk/talk.h"

namespace {

using namespace talk;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// Alice is away, and her program passes her messages on.
class AutoForward : public Talk {
protected:
    AutoForward() { forward_to("Carl Dunn"); }

    void forward_to(std::string_view name)
    {
        alice.settings().ar[3].set_text("Forward to: " + std::string(name));
        auto& menu = alice.forms().menuform.autores;
        menu[3].visible = true;
        alice.person.choose(menu, 3);
    }
    [[nodiscard]] static std::string forwarded(std::string_view to, std::string_view body)
    {
        return datagram(bob_id, to, "-- Msg auto fwded by ALICE MEYER --\r\n" + std::string(body));
    }
    [[nodiscard]] Texts kinds()
    {
        Texts all;
        for (int number = 1; number <= alice.history().count(); ++number) {
            all.push_back(alice.history().row(number)[2]);
        }
        return all;
    }

    controls::CheckBox& answers_too = alice.settings().autoreply;
};

TEST_F(AutoForward, GoesOutUnderTheFirstSender)
{
    answers_too.set(0);

    bob.person.send_to("Alice Meyer", "lunch?");
    office.settle();

    EXPECT_THAT(sent_by(alice), ElementsAre(forwarded(carl_id, "BOB> lunch?")));
    EXPECT_EQ(carl.popup(0).messagefrom.caption(), "Bob");
    EXPECT_EQ(carl.popup(0).message.text(), "-- Msg auto fwded by ALICE MEYER --\r\nBOB> lunch?");
    EXPECT_THAT(popups_on_show(alice), IsEmpty());
}

TEST_F(AutoForward, LeavesARowAsOfAReceivedMessage)
{
    answers_too.set(0);

    hear("BOB> lunch?");

    EXPECT_THAT(kinds(), ElementsAre("From"));
    EXPECT_THAT(last_row(alice),
                ElementsAre("20261115151802", "11/15/26 03:18 pm", "From", "Bob", "BOB>", "lunch?",
                            alice_id, "Forward to: Carl Dunn", "", " Msg 03:18 pm"));
}

TEST_F(AutoForward, AnswersTheSenderTooWhereTheOptionSaysSo)
{
    hear("BOB> lunch?");

    EXPECT_THAT(sent_by(alice),
                ElementsAre(forwarded(carl_id, "BOB> lunch?"),
                            datagram(alice_id, bob_id,
                                     "BOB> lunch?\r\n"
                                     "ALICE MEYER> (Auto Resp) Forward to: Carl Dunn")));
}

TEST_F(AutoForward, AnswersTheSenderTooBesideAGreyedOption)
{
    answers_too.set(2);

    hear("BOB> lunch?");

    EXPECT_THAT(kinds(), ElementsAre("From", "Auto Rep to"));
}

TEST_F(AutoForward, WithAnAnswerLeavesTwoRows)
{
    hear("BOB> lunch?");

    EXPECT_THAT(kinds(), ElementsAre("From", "Auto Rep to"));
    EXPECT_THAT(last_row(alice),
                ElementsAre("20261115151802", "11/15/26 03:18 pm", "Auto Rep to", "Bob", "BOB>",
                            "lunch?", alice_id, "Forward to: Carl Dunn", "", " Msg 03:18 pm"));
}

TEST_F(AutoForward, ToAUserWhoHasGoneIsLostWithoutAWord)
{
    forward_to("Dora");
    answers_too.set(0);

    hear("BOB> lunch?");

    EXPECT_THAT(sent_by(alice), ElementsAre(forwarded("[---]", "BOB> lunch?")));
    EXPECT_THAT(kinds(), ElementsAre("From"));
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

TEST_F(AutoForward, ToNobodysNameGoesToTheFirstOfTheDirectory)
{
    forward_to("");
    answers_too.set(0);

    hear("CARL DUNN> lunch?", carl_id);

    ASSERT_EQ(alice.frmMain().userlist.row(0), "[ROOM07\\BOB]=BOB");
    EXPECT_THAT(sent_by(alice), ElementsAre(StartsWith("[ROOM33\\CARL][ROOM07\\BOB]-- Msg auto")));
}

TEST_F(AutoForward, ToAUserGoesToTheFirstWhoseNameEndsSo)
{
    forward_to("unn");
    answers_too.set(0);

    hear("BOB> lunch?");

    EXPECT_THAT(sent_by(alice), ElementsAre(forwarded(carl_id, "BOB> lunch?")));
}

TEST_F(AutoForward, OfAMessageToAllKeepsItsRecipientInTheRowAlone)
{
    answers_too.set(0);

    hear("BOB> (To All) cake!", bob_id, "[ALL]");

    EXPECT_THAT(sent_by(alice), ElementsAre(forwarded(carl_id, "BOB> (To All) cake!")));
    EXPECT_EQ(last_row(alice)[6], "[ALL]");
}

TEST_F(AutoForward, DoesNotPassOnAMarkedAnswer)
{
    hear(":RE: BOB> lunch?");

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_F(AutoForward, DoesNotPassOnTheUsersOwnBroadcast)
{
    alice.settings().myown.set(1);

    hear("ALICE MEYER> (To All) cake!", alice_id, "[ALL]");

    EXPECT_THAT(sent_by(alice), IsEmpty());
}

TEST_F(AutoForward, IsOnlyWhatBeginsWithItsTwelveCharacters)
{
    for (auto const* response :
         {"forward to: Carl Dunn", "Forward to:Carl Dunn", " Forward to: Carl Dunn", "Forward"}) {
        alice.settings().autorespond.set_text(response);
        office.segment.forget();

        hear("BOB> lunch?");

        EXPECT_THAT(sent_by(alice),
                    ElementsAre(datagram(alice_id, bob_id,
                                         "BOB> lunch?\r\nALICE MEYER> (Auto Resp) " +
                                             std::string(response))));
    }
}

TEST_F(AutoForward, ToAllHearsItsOwnCopyAndGoesOnUntilSomebodyIsBack)
{
    forward_to("ALL");
    answers_too.set(0);
    office.segment.inject_to(alice.host.name, datagram(bob_id, alice_id, "BOB> lunch?"));

    office.run_for(4 * tick);

    std::string const once = "-- Msg auto fwded by ALICE MEYER --\r\n";
    EXPECT_THAT(sent_by(alice), ElementsAre(forwarded("[ALL]", "BOB> lunch?"),
                                            forwarded("[ALL]", once + "BOB> lunch?"),
                                            forwarded("[ALL]", once + once + "BOB> lunch?")));
    alice.person.type("b");
    EXPECT_TRUE(office.settle());
    EXPECT_THAT(popups_on_show(alice), ElementsAre(0));
}

TEST_F(AutoForward, ToAllIsCaughtByMarshall)
{
    alice.frmMain().userlist.add("[ROOM50\\PETE]=PETE MARSHALL");
    forward_to("ALL");
    answers_too.set(0);

    hear("BOB> lunch?");

    EXPECT_THAT(sent_by(alice), ElementsAre(forwarded("[ROOM50\\PETE]", "BOB> lunch?")));
}

TEST_F(AutoForward, ThatTheNetworkRefusesStillLeavesItsRowsAndTheAnswerIsTried)
{
    alice.host.send_failure = text::Failure(text::no_route_to_host, 113, "send");
    alice.journal.switch_on();

    hear("BOB> lunch?");

    EXPECT_THAT(kinds(), ElementsAre("From", "Auto Rep to"));
    EXPECT_THAT(alice.journal.lines(),
                testing::IsSupersetOf({StartsWith("send [ROOM07\\BOB][ROOM33\\CARL]"),
                                       StartsWith("send [ROOM12\\ALICE][ROOM07\\BOB]")}));
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
    EXPECT_TRUE(alice.running());
}

} // namespace
