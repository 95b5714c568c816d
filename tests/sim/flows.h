#pragma once

#include "network/wire.h"
#include "sim/office.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

/// What the stories of the simulated office have in common: two people who know each other, and a
/// few words.
namespace flows {

inline constexpr std::string_view alice_id = "[ROOM12\\ALICE]";
inline constexpr std::string_view bob_id = "[ROOM07\\BOB]";
inline constexpr std::string_view carl_id = "[ROOM33\\CARL]";

inline std::vector<std::string> const known_users{"[ROOM12\\ALICE]=ALICE MEYER",
                                                  "[ROOM07\\BOB]=BOB", "[ROOM33\\CARL]=CARL DUNN"};

/// One tick of the queue.
inline constexpr sim::Duration tick{120'000};
/// One tick of the watch.
inline constexpr sim::Duration watch{5'000'000};

inline std::string announcement(std::string_view id, std::string_view name)
{
    return network::wire::presence(network::wire::announce, id, name);
}

inline std::string answer(std::string_view id, std::string_view name)
{
    return network::wire::presence(network::wire::answer, id, name);
}

inline std::string sign_off(std::string_view id, std::string_view name)
{
    return network::wire::presence(network::wire::sign_off, id, name);
}

inline std::string message(std::string_view from, std::string_view to, std::string_view body)
{
    return network::wire::message(from, to, body);
}

/// A log row of the minute in which the office opens.
inline std::string logged(std::string_view text)
{
    return "11-15-26:03:15p:" + std::string(text);
}

/// Whether these lines stand among others in this order.
MATCHER_P(HasInOrder, wanted, "")
{
    auto next = wanted.begin();
    for (auto const& line : arg) {
        if (next != wanted.end() && line == *next) {
            ++next;
        }
    }
    if (next != wanted.end()) {
        *result_listener << "missing in its place: " << *next;
    }
    return next == wanted.end();
}

using Lines = std::vector<std::string>;

/// Alice and Bob, who have each other on the list.
class TwoPeople : public testing::Test {
protected:
    TwoPeople() : TwoPeople(sim::Setup{}) {}

    /// `setup` is that of Alice's host.
    explicit TwoPeople(sim::Setup setup)
    {
        setup.users = known_users;
        alice.prepare("Alice Meyer", setup);
        bob.prepare("Bob", {.users = known_users});
        alice.start();
        bob.start();
        office.settle();
        office.segment.forget();
    }

    sim::Office office;
    sim::Peer& alice = office.host("ROOM12", "alice");
    sim::Peer& bob = office.host("ROOM07", "bob");
};

} // namespace flows
