#include "tap/capture.h"

#include "sim/minutes.h"
#include "sim/replay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Not;

std::vector<tap::Datagram> capture_of(std::string const& name)
{
    std::ifstream file(VEXLO_PROJECT_FOLDER "/tests/captures/" + name, std::ios::binary);
    return tap::capture::read(std::string(std::istreambuf_iterator<char>(file), {}));
}

/// Alice, and all that she sees of a capture.
class Replay : public testing::Test {
protected:
    Replay()
    {
        office.settle();
        office.segment.forget();
    }

    std::vector<std::string> seen_of(std::vector<tap::Datagram> const& capture)
    {
        std::vector<std::string> seen;
        sim::Minutes minutes(office, alice, [&](sim::Minutes::Entry const& entry) {
            seen.push_back(std::string(entry.what) + ": " + entry.text);
        });
        auto const last = sim::replay(office, capture);
        minutes.run(last, last + 1min);
        return seen;
    }

    sim::Office office;
    sim::Peer& alice =
        office.peer("ROOM12", "alice", "Alice Meyer", {.users = {"[ROOM12\\ALICE]=ALICE MEYER"}});
};

TEST_F(Replay, OfACaptureShowsWhatTheProgramWouldHaveShown)
{
    auto const seen = seen_of(capture_of("lunch.capture"));

    EXPECT_THAT(seen,
                ElementsAre("send: **-[ROOM12\\ALICE]=ALICE MEYER", // Twice, for a newcomer.
                            "send: **-[ROOM12\\ALICE]=ALICE MEYER",
                            "list: ", // The new row empties it.
                            "list: Bob", "list: Alice Meyer, Bob",
                            "popup: Bob: BOB> Lunch at noon?\r\nCaf\xE9?",
                            "log: 11-15-26:03:15p:Msg from BOB\t\r\n"
                            "BOB> Lunch at noon?\r\nCaf\xE9?\r\n---",
                            "popup: Bob: BOB> (To All) Going home",
                            "log: 11-15-26:03:15p:Msg from BOB\t\r\n"
                            "BOB> (To All) Going home\r\n---",
                            "status: BOB has signed off"));
}

TEST_F(Replay, OfOneDatagramAtTheVeryBeginningShowsIt)
{
    auto const seen = seen_of({{.to_port = 4111, .bytes = "[X\\Y][ROOM12\\ALICE]Hi"}});

    EXPECT_THAT(seen, testing::Contains("popup: [X\\y]: Hi"));
}

TEST_F(Replay, KeepsTheRecordedPace)
{
    auto const begin = office.scheduler.now();

    auto const last = sim::replay(office, capture_of("lunch.capture"));

    EXPECT_EQ(last, begin + 4s);
    office.run_for(1499ms);
    EXPECT_FALSE(alice.popup(0).window.visible());
    office.run_for(200ms);
    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(Replay, EndsWhereTheQueueIsBlocked)
{
    auto capture = capture_of("lunch.capture");
    capture.insert(capture.begin(), {.to_port = 4111, .bytes = "***blocks"});

    EXPECT_THAT(seen_of(capture), Not(testing::Contains(testing::StartsWith("popup"))));
    EXPECT_EQ(alice.frmMain().cue.size(), capture.size());
}

TEST_F(Replay, OfWhatAnOfficeSaidShowsALatecomerTheSame)
{
    sim::Office elsewhere;
    auto& bob = elsewhere.peer("ROOM07", "bob", "Bob", {.users = {"[ROOM12\\ALICE]=ALICE"}});
    elsewhere.settle();
    elsewhere.segment.forget();
    bob.enter([&] { bob.frmMain().getusers.run(); });
    elsewhere.settle();
    bob.person.tick_all();
    bob.person.send("To everybody");
    elsewhere.settle();
    auto file = std::string(tap::capture::head) + "\n";
    for (auto const& each : elsewhere.segment.sent()) {
        file += tap::capture::line({.when = each.when,
                                    .from = "10.7.0.2",
                                    .from_port = each.from_port,
                                    .to_port = each.to_port,
                                    .bytes = *each.bytes});
    }

    auto const seen = seen_of(tap::capture::read(file));

    EXPECT_THAT(seen, testing::Contains("popup: Bob: BOB> (To All) To everybody"));
    EXPECT_THAT(alice.frmMain().allusers.rows(), testing::Contains("Bob"));
}

} // namespace
