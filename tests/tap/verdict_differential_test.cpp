#include "tap/verdict.h"

#include "sim/office.h"
#include "tests/tap/datagrams.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using tap::Act;
using tap::Verdict;
using Popups = std::vector<Verdict::Popup>;

constexpr sim::Duration tick{120'000};

struct Person {
    std::string name; ///< of the test
    std::vector<std::pair<std::string, std::string>> settings;
    std::optional<std::size_t> away; ///< the entry of the auto-respond menu
};

/// A complete program beside its onlooker. Nothing that it says comes back to it, so that what it
/// does is all about the one datagram.
class Pair {
public:
    explicit Pair(Person const& person)
    {
        peer_.prepare("Alice Meyer", {.settings = person.settings,
                                      .users = {"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM07\\BOB]=BOB",
                                                "[ROOM33\\CARL]=CARL DUNN"}});
        peer_.start();
        office_.settle();
        office_.segment.faults.loss = 1;
        peer_.frmMain().Timer1.disable();
        if (person.away) {
            peer_.enter([&] { peer_.forms().menuform.autores.choose(*person.away); });
        }
        onlooker_ =
            std::make_unique<tap::Onlooker>(tap::view_of(peer_.forms()), peer_.frmMain().letters);
    }

    /// Both take it; what differs fails the test.
    Verdict take(std::string const& datagram)
    {
        clear_desk();
        peer_.listening.receive(datagram);
        office_.run_for(2 * tick);
        auto const verdict = onlooker_->take(datagram);
        compare(verdict);
        return verdict;
    }

private:
    void clear_desk()
    {
        office_.segment.forget();
        peer_.sound.played.clear();
        peer_.history().clear();
        peer_.forms().log.lstMessages.clear();
        peer_.enter([this] {
            peer_.frmMain().statustext.set_caption("");
            peer_.frmMain().dissmissall.click();
        });
    }

    void compare(Verdict const& verdict)
    {
        ASSERT_TRUE(peer_.running());
        auto const& frmMain = peer_.frmMain();
        bool const stuck = verdict.act == Act::blocks || verdict.act == Act::waits;
        auto const popups = popups_on_show();
        auto const messages = popups.size();
        bool const stands_in = verdict.act == Act::responds || verdict.act == Act::forwards;
        EXPECT_FALSE(verdict.reason.empty());
        EXPECT_EQ(verdict.sends, office_.segment.texts_from("ROOM12"));
        EXPECT_EQ(popups, verdict.popup ? Popups{*verdict.popup} : Popups{});
        EXPECT_EQ(verdict.popup.has_value(), verdict.act == Act::shows);
        EXPECT_EQ(!verdict.sends.empty(), stands_in || verdict.act == Act::answers);
        EXPECT_EQ(!verdict.status.empty(), verdict.act == Act::notes);
        EXPECT_EQ(verdict.status, frmMain.statustext.caption());
        EXPECT_EQ(onlooker_->userlist(), frmMain.userlist.rows());
        EXPECT_EQ(onlooker_->allusers(), frmMain.allusers.rows());
        EXPECT_EQ(!frmMain.cue.empty(), stuck);
        EXPECT_EQ(peer_.sound.played.size(), messages);
        EXPECT_EQ(peer_.log().size(), messages);
        EXPECT_EQ(static_cast<std::size_t>(peer_.history().count()),
                  messages + (stands_in ? verdict.sends.size() : 0));
    }

    Popups popups_on_show()
    {
        Popups all;
        for (forms::Popup const& popup : peer_.forms().popup) {
            if (popup.window.visible()) {
                all.push_back({popup.messagefrom.caption(), popup.message.text(),
                               popup.Label3.caption() == "(Sent to ALL)"});
            }
        }
        return all;
    }

    sim::Office office_;
    sim::Peer& peer_ = office_.host("ROOM12", "alice");
    std::unique_ptr<tap::Onlooker> onlooker_;
};

class VerdictDifferential : public testing::TestWithParam<Person> {
protected:
    void take_all(std::vector<std::string> const& datagrams)
    {
        auto pair = std::make_unique<Pair>(GetParam());
        for (auto const& datagram : datagrams) {
            SCOPED_TRACE(testing::PrintToString(datagram.substr(0, 300)));
            auto const verdict = pair->take(datagram);
            if (verdict.act == Act::blocks) {
                EXPECT_EQ(pair->take("[ROOM07\\BOB][ROOM12\\ALICE]BOB> Hello").act, Act::waits);
                pair = std::make_unique<Pair>(GetParam());
            }
            if (HasFailure()) {
                return;
            }
        }
    }
};

TEST_P(VerdictDifferential, OfWhatWasPickedByHand)
{
    take_all(datagrams::hand_picked());
}

TEST_P(VerdictDifferential, OfTheFuzzCorpora)
{
    take_all(datagrams::of_the_corpora());
}

TEST_P(VerdictDifferential, OfThousandsOfMutations)
{
    auto seeds = datagrams::hand_picked();
    for (auto& each : datagrams::of_the_corpora()) {
        seeds.push_back(std::move(each));
    }
    for (std::uint64_t seed = 1; seed <= 2; ++seed) {
        take_all(datagrams::mutated(seeds, 1000, seed));
    }
}

Person const people[]{
    {"usual", {}, {}},
    {"sees_own", {{"SHOWOWN", "1"}}, {}},
    {"hides_own_name", {{"SHOWMEINLIST", "0"}}, {}},
    {"replies_to_all", {{"REPLYTOALL", "1"}}, {}},
    {"away", {{"SHOWOWN", "1"}}, 0},
    {"away_with_no_words", {}, 3},
    {"forwards", {{"AUTORESPONSEMSG3", "Forward to: BOB"}, {"AUTORESPONSEFORWARD", "0"}}, 3},
    {"forwards_and_responds", {{"AUTORESPONSEMSG3", "Forward to: CARL DUNN"}}, 3},
    {"forwards_to_nobody", {{"AUTORESPONSEMSG3", "Forward to: ZOE"}}, 3},
};

INSTANTIATE_TEST_SUITE_P(People, VerdictDifferential, testing::ValuesIn(people),
                         [](auto const& person) { return person.param.name; });

} // namespace
