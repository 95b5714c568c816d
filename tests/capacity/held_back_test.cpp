#include "sim/backlog.h"
#include "sim/chance.h"
#include "sim/office.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

using namespace std::chrono_literals;
using sim::Backlog;
using sim::Office;
using sim::Peer;

constexpr std::size_t all_rows = std::numeric_limits<std::size_t>::max();
constexpr std::size_t few_rows = 30;

TEST(Backlog, GivesBackWhatCameInTheOrderInWhichItCame)
{
    Backlog backlog;
    for (std::size_t const number : {4U, 5U, 9U, 10U, 7U}) {
        backlog.add(number);
    }
    EXPECT_EQ(backlog.size(), 5U);

    std::vector<std::size_t> taken;
    while (!backlog.empty()) {
        taken.push_back(backlog.take());
    }

    EXPECT_THAT(taken, testing::ElementsAre(4, 5, 9, 10, 7));
}

struct Case {
    int people;
    sim::Segment::Faults faults;
    sim::Duration end;
};

/// Strangers who start within a few seconds, so that their queues grow long.
class Strangers {
public:
    Strangers(Case const& told, std::size_t most_rows)
    {
        office.segment.faults = told.faults;
        sim::Chance chance(7);
        for (int number = 0; number < told.people; ++number) {
            auto const text = std::to_string(number);
            auto& peer = office.host("ROOM" + text, "user" + text);
            peer.most_rows = most_rows;
            peer.prepare("Person " + text);
            auto const moment = std::chrono::milliseconds(chance.below(5000));
            office.scheduler.at(moment, [&peer] { peer.start(); });
        }
    }

    /// Lets them run, and writes down each second what is to be seen at every desk.
    [[nodiscard]] std::vector<std::size_t> seen_until(sim::Duration end)
    {
        std::vector<std::size_t> seen;
        while (office.scheduler.now() < end) {
            office.run_for(1s);
            for (Peer& each : office.peers()) {
                auto& frmMain = each.frmMain();
                seen.push_back(each.queued());
                for (int const number : {frmMain.traffic.value(), frmMain.allusers.count(),
                                         frmMain.userlist.count()}) {
                    seen.push_back(static_cast<std::size_t>(number));
                }
            }
        }
        return seen;
    }

    [[nodiscard]] std::vector<std::string> sent() const
    {
        std::vector<std::string> lines;
        for (auto const& each : office.segment.sent()) {
            lines.push_back(std::to_string(each.when.count()) + " " + each.host + " " +
                            *each.bytes);
        }
        return lines;
    }

    [[nodiscard]] std::vector<std::string> files()
    {
        std::vector<std::string> contents;
        for (Peer& each : office.peers()) {
            contents.push_back(each.files.content("users.txt"));
        }
        return contents;
    }

    Office office;
};

class HeldBack : public testing::TestWithParam<Case> {};

TEST_P(HeldBack, ACrowdDoesTheSameToTheRowAndTheMicrosecond)
{
    Strangers whole(GetParam(), all_rows);
    Strangers held(GetParam(), few_rows);

    EXPECT_EQ(whole.seen_until(GetParam().end), held.seen_until(GetParam().end));

    EXPECT_EQ(whole.sent(), held.sent());
    EXPECT_EQ(whole.files(), held.files());
    for (Peer& each : held.office.peers()) {
        EXPECT_LE(each.frmMain().cue.size(), few_rows);
    }
}

INSTANTIATE_TEST_SUITE_P(Queues, HeldBack,
                         testing::Values(Case{10, {}, 60s}, Case{20, {.loss = 0.05}, 60s},
                                         Case{20, {.duplication = 0.1, .delay = 1s}, 60s},
                                         Case{50, {}, 30s}));

TEST(HeldBack, WaitsWhileABoxIsOpenAsTheQueueDoes)
{
    Strangers whole({10, {}, 60s}, all_rows);
    Strangers held({10, {}, 60s}, few_rows);
    for (auto* const strangers : {&whole, &held}) {
        strangers->office.run_for(6s);
        auto& first = strangers->office.peers().front();
        ASSERT_GT(first.queued(), few_rows);
        first.enter([&] { first.frmMain().boxopen.set(1); });
        strangers->office.run_for(5s);
        first.enter([&] { first.frmMain().boxopen.set(0); });
    }

    EXPECT_EQ(whole.seen_until(60s), held.seen_until(60s));
    EXPECT_EQ(whole.sent(), held.sent());
}

TEST(HeldBack, IsLostWithTheProgram)
{
    Strangers held({10, {}, 60s}, few_rows);
    held.office.run_for(6s);
    auto& first = held.office.peers().front();
    ASSERT_GT(first.queued(), few_rows);

    first.restart();

    EXPECT_EQ(first.queued(), 0U);
}

} // namespace
