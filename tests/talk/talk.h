#pragma once

#include "controls/table.h"
#include "controls/text_box.h"
#include "sim/office.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

/// What the stories of conversations have in common: three people in an office who know each other,
/// a clock that stands where the stories say, and a few words.
namespace talk {

inline constexpr std::string_view alice_id = "[ROOM12\\ALICE]";
inline constexpr std::string_view bob_id = "[ROOM07\\BOB]";
inline constexpr std::string_view carl_id = "[ROOM33\\CARL]";

inline std::vector<std::string> const known_users{"[ROOM12\\ALICE]=ALICE MEYER",
                                                  "[ROOM07\\BOB]=BOB", "[ROOM33\\CARL]=CARL DUNN"};

/// When the stories begin. The watch, which writes into the status line, comes four seconds later.
inline constexpr text::LocalTime moment{2026, 11, 15, 15, 18, 2};

inline constexpr controls::Colour red{255, 0, 0};
inline constexpr controls::Colour black{0, 0, 0};

inline constexpr sim::Duration tick{120'000};

using Texts = std::vector<std::string>;
using Row = controls::Table::Row;

[[nodiscard]] std::string datagram(std::string_view from, std::string_view to,
                                   std::string_view body);

/// A log row of that moment, of `head` alone or with a text.
[[nodiscard]] std::string logged(std::string_view head);
[[nodiscard]] std::string logged(std::string_view head, std::string_view body);

/// The stretches of a text that have this colour.
[[nodiscard]] Texts painted(controls::RichText const& box, controls::Colour colour);

/// The last row of a peer's history.
[[nodiscard]] Row last_row(sim::Peer& peer);

/// The rows of a history, each as its kind, party and text.
[[nodiscard]] Texts told(controls::Table const& history);

/// A row as a message received leaves it.
[[nodiscard]] Row row_from(std::string_view sender, std::string_view head, std::string_view text);

/// The numbers of the popups on show.
[[nodiscard]] std::vector<std::size_t> popups_on_show(sim::Peer& peer);

/// Alice, Bob and Carl, who have each other on the list.
class Talk : public testing::Test {
protected:
    /// `setup` is that of Alice's host.
    explicit Talk(sim::Setup setup = {});

    /// Alice hears this from Bob, body as given.
    void hear(std::string_view body, std::string_view from = bob_id,
              std::string_view to = alice_id);
    /// The datagrams that a host has sent in this story.
    [[nodiscard]] Texts sent_by(sim::Peer& peer) const
    {
        return office.segment.texts_from(peer.host.name);
    }
    /// Brings up the history window of Alice.
    void open_history();
    /// Puts a row into Alice's history and onto the screen, as if she had clicked it.
    void keep(Row const& row);
    /// Ends Alice's program the proper way and starts it again.
    void restart_alice();

    sim::Office office;
    sim::Peer& alice = office.host("ROOM12", "alice");
    sim::Peer& bob = office.host("ROOM07", "bob");
    sim::Peer& carl = office.host("ROOM33", "carl");
};

} // namespace talk
