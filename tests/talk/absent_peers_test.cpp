#include "tests/talk/talk.h"

namespace {

using namespace talk;
using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// Alice and Bob are both away, and a message of Bob's is on its way to Alice.
class AbsentPeers : public Talk {
protected:
    AbsentPeers()
    {
        leave_desk(alice);
        bob.person.send_to("Alice Meyer", "lunch?");
        leave_desk(bob);
    }

    static void leave_desk(sim::Peer& peer)
    {
        peer.person.choose(peer.forms().menuform.autores, 0);
    }
    /// Bob answers with so many words that the end is near.
    void answer_at_length() { bob.settings().autorespond.set_text(std::string(9'000, 'w')); }
    /// Every message so far, in order.
    [[nodiscard]] std::vector<sim::Segment::Sent> const& sent() const
    {
        return office.segment.sent();
    }
    [[nodiscard]] std::string const& last() const { return *sent().back().bytes; }
    [[nodiscard]] static std::string body(std::string const& datagram)
    {
        return datagram.substr(alice_id.size() + bob_id.size());
    }
};

TEST_F(AbsentPeers, AnswerEachOtherEachTimeWithALineMore)
{
    office.run_for(4 * (tick + sim::Segment::latency));

    std::string const first = "BOB> lunch?";
    std::string const second = first + "\r\nALICE MEYER> (Auto Resp) I'm away from my desk";
    std::string const third = second + "\r\nBOB> (Auto Resp) I'm away from my desk";
    std::string const fourth = third + "\r\nALICE MEYER> (Auto Resp) I'm away from my desk";
    ASSERT_GE(sent().size(), 4U);
    EXPECT_EQ(*sent()[0].bytes, datagram(bob_id, alice_id, first));
    EXPECT_EQ(*sent()[1].bytes, datagram(alice_id, bob_id, second));
    EXPECT_EQ(*sent()[2].bytes, datagram(bob_id, alice_id, third));
    EXPECT_EQ(*sent()[3].bytes, datagram(alice_id, bob_id, fourth));
}

TEST_F(AbsentPeers, AnswerAtThePaceOfTheirQueues)
{
    office.run_for(10s);

    ASSERT_THAT(sent(), SizeIs(testing::Gt(70U)));
    for (std::size_t place = 1; place < sent().size(); ++place) {
        auto const pause = sent()[place].when - sent()[place - 1].when;
        EXPECT_GE(pause, tick);
        EXPECT_LE(pause, tick + sim::Segment::latency);
    }
}

TEST_F(AbsentPeers, KeepNothingButRows)
{
    office.run_for(10s);

    for (sim::Peer* const peer : {&alice, &bob}) {
        EXPECT_THAT(popups_on_show(*peer), IsEmpty());
        EXPECT_THAT(peer->log(), testing::Not(Contains(HasSubstr("Msg from"))));
    }
    EXPECT_EQ(last_row(alice)[2], "Auto Rep to");
    EXPECT_EQ(last_row(bob)[2], "Auto Rep to");
}

TEST_F(AbsentPeers, EndWhenOneOfThemTypes)
{
    office.run_for(10s);

    bob.person.type("b");
    ASSERT_TRUE(office.settle());

    EXPECT_THAT(popups_on_show(bob), ElementsAre(0));
    EXPECT_EQ(bob.popup(0).message.text(), body(last()));
}

TEST_F(AbsentPeers, EndWhenTheTextFitsNoDatagramAndNobodyIsTold)
{
    ASSERT_TRUE(office.settle(1h));

    EXPECT_LE(last().size(), sim::Segment::largest_datagram);
    EXPECT_GT(last().size() + 60, sim::Segment::largest_datagram);
    for (sim::Peer* const peer : {&alice, &bob}) {
        EXPECT_TRUE(peer->running());
        EXPECT_EQ(peer->frmMain().away.value(), 1);
        EXPECT_THAT(peer->boxes.shown(), IsEmpty());
        EXPECT_THAT(peer->frmMain().cue, IsEmpty());
        EXPECT_EQ(peer->history().count(), 100);
    }
    // Who could not answer any more has the row all the same.
    auto& silent = sent().back().host == bob.host.name ? alice : bob;
    EXPECT_EQ(last_row(silent)[2], "Auto Rep to");
    EXPECT_EQ(last_row(silent)[4] + " " + last_row(silent)[5], body(last()));
}

TEST_F(AbsentPeers, AnswerOthersBehindThatEnd)
{
    answer_at_length();
    ASSERT_TRUE(office.settle(1h));
    office.segment.forget();

    carl.person.send_to("Alice Meyer", "dinner?");
    office.settle();

    EXPECT_EQ(last(), datagram(alice_id, carl_id,
                               "CARL DUNN> dinner?\r\nALICE MEYER> (Auto Resp) "
                               "I'm away from my desk"));
}

TEST_F(AbsentPeers, FindTheLongRowsAgainBehindARestart)
{
    answer_at_length();
    ASSERT_TRUE(office.settle(1h));
    ASSERT_GT(last_row(alice)[5].size(), 60'000U);
    auto const rows = told(alice.history());

    restart_alice();

    EXPECT_EQ(told(alice.history()), rows);
}

} // namespace
