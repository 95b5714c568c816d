#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using sim::Office;
using sim::Peer;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

std::string number_of(int number)
{
    return std::to_string(1000 + number);
}

std::string id_of(int number)
{
    return "[ROOM" + number_of(number) + "\\USER" + number_of(number) + "]";
}

/// An office of many people who know each other. They have started one by one, unheard: a segment
/// on which all announce themselves at once is another story.
class BigOffice {
public:
    explicit BigOffice(int people) : people_(people)
    {
        std::vector<std::string> users;
        for (int number = 0; number < people; ++number) {
            users.push_back(id_of(number) + "=PERSON " + number_of(number));
        }
        office.segment.faults.loss = 1;
        for (int number = 0; number < people; ++number) {
            office.peer("ROOM" + number_of(number), "user" + number_of(number),
                        "Person " + number_of(number), {.users = users});
        }
        office.settle();
        office.segment.faults.loss = 0;
        office.segment.forget();
    }

    [[nodiscard]] Peer& peer(int number)
    {
        return office.peers().at(static_cast<std::size_t>(number));
    }

    void round_of(int number)
    {
        auto& one = peer(number);
        one.enter([&] { one.frmMain().getusers.run(); });
    }

    /// Who has a popup open.
    [[nodiscard]] std::vector<int> reached()
    {
        std::vector<int> numbers;
        for (int number = 0; number < people_; ++number) {
            if (peer(number).popup(0).window.visible()) {
                numbers.push_back(number);
            }
        }
        return numbers;
    }

    Office office;

private:
    int people_;
};

TEST(ManyPeers, OneRoundPutsTwoHundredPeopleOnEveryList)
{
    constexpr int people = 200;
    BigOffice big(people);
    auto const begin = big.office.scheduler.now();
    big.round_of(0);

    ASSERT_TRUE(big.office.settle());

    EXPECT_THAT(big.office.segment.sent(), SizeIs(1 + people));
    for (Peer& each : big.office.peers()) {
        EXPECT_EQ(each.frmMain().allusers.count(), people);
        EXPECT_EQ(each.frmMain().userlist.count(), people);
    }
    // One row a tick: the announcement, and an answer of each.
    auto const duration = big.office.scheduler.now() - begin;
    EXPECT_GE(duration, (people + 1) * tick);
    EXPECT_LE(duration, (people + 3) * tick);
}

TEST(ManyPeers, AMessageToAllPopsUpAtEverybodyElse)
{
    constexpr int people = 200;
    BigOffice big(people);

    big.peer(7).person.tick_all();
    big.peer(7).person.send("Fire drill");
    big.office.settle();

    EXPECT_THAT(big.reached(), SizeIs(people - 1));
    EXPECT_THAT(big.reached(), Not(Contains(7)));
}

TEST(ManyPeers, AMessageToOnePopsUpAtOne)
{
    BigOffice big(50);
    big.round_of(0);
    big.office.settle();

    big.peer(0).person.send_to("Person 1037", "Hello");
    big.office.settle();

    EXPECT_THAT(big.reached(), ElementsAre(37));
}

TEST(ManyPeers, ANewcomerIsKnownToAllBehindItsFirstRun)
{
    constexpr int people = 50;
    BigOffice big(people);

    auto& dora = big.office.newcomer("ROOM9", "dora", "Dora");
    ASSERT_TRUE(big.office.settle());

    EXPECT_EQ(dora.frmMain().userlist.count(), people + 1);
    for (Peer& each : big.office.peers()) {
        EXPECT_EQ(each.frmMain().userlist.count(), people + 1);
    }
}

TEST(ManyPeers, TwentyWhoStartAtOnceFindEachOther)
{
    constexpr int people = 20;
    Office office;
    for (int number = 0; number < people; ++number) {
        office.newcomer("ROOM" + number_of(number), "user", "Person " + number_of(number));
    }
    ASSERT_TRUE(office.settle(30min));

    for (Peer& each : office.peers()) {
        EXPECT_EQ(each.frmMain().userlist.count(), people);
        EXPECT_EQ(each.frmMain().allusers.count(), people);
    }
}

TEST(ManyPeers, OnlyTheWatchTicksWhenAllIsQuiet)
{
    constexpr int people = 200;
    BigOffice big(people);
    auto const events = big.office.scheduler.events();

    big.office.run_for(1min);

    EXPECT_EQ(big.office.scheduler.events() - events, 12U * people);
    EXPECT_THAT(big.office.segment.sent(), IsEmpty());
}

} // namespace
