#include "bad_segment.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using sim::Office;
using sim::Peer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The texts of the messages that have come in.
std::vector<std::string> heard(Peer& peer)
{
    std::vector<std::string> texts;
    for (int row = 1; row <= peer.history().count(); ++row) {
        if (peer.history().row(row).at(2) == "From") {
            texts.push_back(peer.history().row(row).at(5));
        }
    }
    return texts;
}

/// All that was sent, with its time and its sender.
std::vector<std::string> record(Office& office)
{
    std::vector<std::string> lines;
    for (auto const& sent : office.segment.sent()) {
        lines.push_back(std::to_string(sent.when.count()) + " " + sent.host + " " + *sent.bytes);
    }
    return lines;
}

TEST(BadSegment, OneSeedIsOneStory)
{
    sim::Segment::Faults const all{
        .loss = 0.2, .duplication = 0.2, .reordering = 0.3, .delay = 40ms};
    auto const one = open_office(42, all);
    auto const same = open_office(42, all);
    auto const other = open_office(43, all);
    for (auto* const office : {one.get(), same.get(), other.get()}) {
        office->settle();
        talk(*office);
    }

    EXPECT_EQ(record(*one), record(*same));
    EXPECT_NE(record(*one), record(*other));
}

TEST(BadSegment, EverybodyFindsEverybodyOnAGoodOne)
{
    auto const office = open_office(1, {});
    office->settle();

    for (Peer& peer : office->peers()) {
        EXPECT_THAT(peer.frmMain().userlist.rows(), SizeIs(4));
    }
}

TEST(BadSegment, WhatIsLostIsLostAndNobodyNotices)
{
    auto const office = open_office(1, {});
    office->settle();
    office->segment.faults.loss = 1;

    talk(*office);

    for (Peer& peer : office->peers()) {
        EXPECT_THAT(heard(peer), IsEmpty());
        EXPECT_EQ(peer.frmMain().statustext.caption(), "Message sent to ALL");
    }
}

TEST(BadSegment, SomeLossLosesSome)
{
    auto const office = open_office(5, {});
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

TEST(BadSegment, ARoundMendsTheListsBehindALoss)
{
    auto const office = open_office(9, {.loss = 0.6});
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

TEST(BadSegment, WhatComesTwiceIsShownTwice)
{
    auto const office = open_office(1, {});
    office->settle();
    office->segment.faults.duplication = 1;

    office->peers().front().person.tick_all();
    office->peers().front().person.send("hello");
    office->settle();

    EXPECT_THAT(heard(office->peers().back()), ElementsAre("(To All) hello", "(To All) hello"));
}

TEST(BadSegment, DelayKeepsTheOrder)
{
    auto const office = open_office(3, {});
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

TEST(BadSegment, ReorderingLetsSomeOvertakeAndLosesNone)
{
    auto const office = open_office(3, {});
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

TEST(BadSegment, APartitionKeepsTheSidesApartUntilItHeals)
{
    auto const office = open_office(1, {});
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

TEST(BadSegment, PeersThatMetInAPartitionMeetTheOthersWithTheNextRound)
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

TEST(BadSegment, AHostWithoutALinkHearsNothing)
{
    auto const office = open_office(1, {});
    office->settle();
    auto& deaf = office->peers().back();
    deaf.unplug();

    office->peers().front().person.tick_all();
    office->peers().front().person.send("hello");
    office->settle();

    EXPECT_THAT(heard(deaf), IsEmpty());
}

} // namespace
