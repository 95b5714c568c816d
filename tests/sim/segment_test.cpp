#include "flows.h"

#include <memory>

namespace {

using namespace flows;
using namespace std::chrono_literals;
using sim::Chance;
using sim::Office;
using sim::Peer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A few people on a bad segment, who find each other and talk.
class BadSegment : public testing::Test {
protected:
    /// Opens an office of `people` hosts.
    static std::unique_ptr<Office> open(std::uint64_t seed, sim::Segment::Faults faults,
                                        int people = 4)
    {
        auto office = std::make_unique<Office>(seed);
        office->segment.faults = faults;
        for (int number = 0; number < people; ++number) {
            auto const name = "P" + std::to_string(number);
            office->peer("ROOM" + std::to_string(number), name, name);
        }
        return office;
    }

    /// Everybody says something to all, in turn.
    static void talk(Office& office)
    {
        for (Peer& peer : office.peers()) {
            peer.person.tick_all();
            peer.person.send("from " + peer.host.name);
            office.run_for(50ms);
        }
        office.settle();
    }

    static std::vector<std::string> heard(Peer& peer)
    {
        std::vector<std::string> texts;
        for (int row = 1; row <= peer.history().count(); ++row) {
            if (peer.history().row(row).at(2) == "From") {
                texts.push_back(peer.history().row(row).at(5));
            }
        }
        return texts;
    }

    static std::vector<std::string> record(Office& office)
    {
        std::vector<std::string> lines;
        for (auto const& sent : office.segment.sent()) {
            lines.push_back(std::to_string(sent.when.count()) + " " + sent.host + " " +
                            *sent.bytes);
        }
        return lines;
    }
};

TEST_F(BadSegment, OneSeedIsOneStory)
{
    sim::Segment::Faults const all{
        .loss = 0.2, .duplication = 0.2, .reordering = 0.3, .delay = 40ms};
    auto const one = open(42, all);
    auto const same = open(42, all);
    auto const other = open(43, all);
    for (auto* const office : {one.get(), same.get(), other.get()}) {
        office->settle();
        talk(*office);
    }

    EXPECT_EQ(record(*one), record(*same));
    EXPECT_NE(record(*one), record(*other));
}

TEST_F(BadSegment, EverybodyFindsEverybodyOnAGoodOne)
{
    auto const office = open(1, {});
    office->settle();

    for (Peer& peer : office->peers()) {
        EXPECT_THAT(peer.frmMain().userlist.rows(), SizeIs(4));
    }
}

TEST_F(BadSegment, WhatIsLostIsLostAndNobodyNotices)
{
    auto const office = open(1, {});
    office->settle();
    office->segment.faults.loss = 1;

    talk(*office);

    for (Peer& peer : office->peers()) {
        EXPECT_THAT(heard(peer), IsEmpty());
        EXPECT_EQ(peer.frmMain().statustext.caption(), "Message sent to ALL");
    }
}

TEST_F(BadSegment, SomeLossLosesSome)
{
    auto const office = open(5, {});
    office->settle();
    office->segment.faults.loss = 0.5;

    talk(*office);

    std::size_t total = 0;
    for (Peer& peer : office->peers()) {
        total += heard(peer).size();
    }
    EXPECT_GT(total, 0U);
    EXPECT_LT(total, 12U);
}

TEST_F(BadSegment, ARoundMendsTheListsBehindALoss)
{
    auto const office = open(9, {.loss = 0.6});
    office->settle();
    office->segment.faults = {};

    for (int round = 0; round < 3; ++round) {
        for (Peer& peer : office->peers()) {
            peer.enter([&] { peer.frmMain().getusers.run(); });
        }
        office->settle();
    }

    for (Peer& peer : office->peers()) {
        EXPECT_THAT(peer.frmMain().allusers.rows(), ElementsAre("P0", "P1", "P2", "P3"));
    }
}

TEST_F(BadSegment, WhatComesTwiceIsShownTwice)
{
    auto const office = open(1, {});
    office->settle();
    office->segment.faults.duplication = 1;

    office->peers().front().person.tick_all();
    office->peers().front().person.send("hello");
    office->settle();

    EXPECT_THAT(heard(office->peers().back()), ElementsAre("(To All) hello", "(To All) hello"));
}

TEST_F(BadSegment, DelayKeepsTheOrder)
{
    auto const office = open(3, {});
    office->settle();
    office->segment.faults.delay = 200ms;
    for (int number = 0; number < 20; ++number) {
        office->segment.inject(message("[X\\Y]", "[ALL]", "Y> " + std::to_string(number)));
    }
    office->settle();

    auto const texts = heard(office->peers().front());
    ASSERT_THAT(texts, SizeIs(20));
    for (std::size_t number = 0; number < 20; ++number) {
        EXPECT_EQ(texts[number], std::to_string(number));
    }
}

TEST_F(BadSegment, ReorderingLetsSomeOvertakeAndLosesNone)
{
    auto const office = open(3, {});
    office->settle();
    office->segment.faults.reordering = 0.5;
    std::vector<std::string> in_order;
    for (int number = 0; number < 20; ++number) {
        in_order.push_back(std::to_string(number));
        office->segment.inject(message("[X\\Y]", "[ALL]", "Y> " + in_order.back()));
        office->run_for(1ms);
    }
    office->settle();

    auto const texts = heard(office->peers().front());
    EXPECT_THAT(texts, testing::UnorderedElementsAreArray(in_order));
    EXPECT_NE(texts, in_order);
}

TEST_F(BadSegment, APartitionKeepsTheSidesApartUntilItHeals)
{
    auto const office = open(1, {});
    office->settle();
    office->segment.partition({{"ROOM0", "ROOM1"}, {"ROOM2"}});

    talk(*office);
    EXPECT_THAT(heard(office->peers().at(0)), ElementsAre("(To All) from ROOM1"));
    EXPECT_THAT(heard(office->peers().at(2)), IsEmpty());
    EXPECT_THAT(heard(office->peers().at(3)), IsEmpty());

    office->segment.heal();
    talk(*office);
    EXPECT_THAT(heard(office->peers().at(2)), SizeIs(3));
}

TEST_F(BadSegment, PeersThatMetInAPartitionMeetTheOthersWithTheNextRound)
{
    auto office = std::make_unique<Office>(1);
    for (std::string const name : {"P0", "P1"}) {
        office->host("ROOM" + name, name).prepare(name);
    }
    office->segment.partition({{"ROOMP0"}});
    for (Peer& peer : office->peers()) {
        peer.start();
    }
    office->settle();
    EXPECT_THAT(office->peers().front().frmMain().allusers.rows(), ElementsAre("P0"));

    office->segment.heal();
    for (int round = 0; round < 2; ++round) {
        office->peers().front().enter([&] { office->peers().front().frmMain().getusers.run(); });
        office->settle();
    }

    for (Peer& peer : office->peers()) {
        EXPECT_THAT(peer.frmMain().allusers.rows(), ElementsAre("P0", "P1"));
    }
}

TEST_F(BadSegment, AHostWithoutALinkHearsNothing)
{
    auto const office = open(1, {});
    office->settle();
    auto& deaf = office->peers().back();
    deaf.unplug();

    office->peers().front().person.tick_all();
    office->peers().front().person.send("hello");
    office->settle();

    EXPECT_THAT(heard(deaf), IsEmpty());
}

TEST_F(BadSegment, AnyNonsenseIsTakenAndCostsItsTickOnly)
{
    auto const office = open(1, {}, 2);
    office->settle();
    Chance chance(11);
    int const rows = 500;
    for (int number = 0; number < rows; ++number) {
        std::string bytes(chance.below(300), '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(chance.below(256));
        }
        office->segment.inject(bytes);
    }
    auto const begin = office->scheduler.now();

    EXPECT_TRUE(office->settle());

    EXPECT_LE(office->scheduler.now() - begin, (rows + 1) * tick);
    for (Peer& peer : office->peers()) {
        EXPECT_TRUE(peer.running());
        EXPECT_THAT(peer.frmMain().cue, IsEmpty());
    }
}

TEST_F(BadSegment, NonsenseThatLooksLikeDatagramsIsSurvived)
{
    constexpr std::string_view letters = "*-]=[>\\ AB\r\n";
    auto const office = open(1, {}, 2);
    office->settle();
    Chance chance(12);
    for (int number = 0; number < 500; ++number) {
        std::string bytes(chance.happens(0.5) ? "**" : "");
        for (std::uint64_t left = chance.below(40); left > 0; --left) {
            bytes += letters[chance.below(letters.size())];
        }
        if (bytes.find('=') == std::string::npos) {
            bytes += '='; // A marker without one would block the queue, which is as told.
        }
        office->segment.inject(bytes);
        office->run_for(tick);
    }

    EXPECT_TRUE(office->settle());

    for (Peer& peer : office->peers()) {
        EXPECT_TRUE(peer.running()) << peer.report();
    }
}

TEST_F(BadSegment, ManySeedsOfChaosEndNobody)
{
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        auto const office =
            open(seed, {.loss = 0.3, .duplication = 0.3, .reordering = 0.5, .delay = 300ms}, 5);
        office->settle();
        talk(*office);
        for (Peer& peer : office->peers()) {
            EXPECT_TRUE(peer.running()) << seed;
            EXPECT_THAT(peer.frmMain().cue, IsEmpty()) << seed;
            EXPECT_LE(peer.frmMain().userlist.count(), 5) << seed;
        }
    }
}

} // namespace
