#pragma once

#include "network/wire.h"
#include "tests/talk/ledgers.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talk {

/// One of a big office: the program, the person in front of it, and the ledgers of both. People are
/// known by their numbers.
class Worker {
public:
    /// What the away mode does; empty while the person is there.
    using Absence = std::optional<std::string>;

    struct Habits {
        bool hears_own_broadcasts = false;
        bool answers_what_it_forwards = false;
    };

    static constexpr std::string_view group = "FRIENDS";

    Worker(sim::Peer& of, int number, Habits habits);
    Worker(Worker const&) = delete;
    Worker& operator=(Worker const&) = delete;

    [[nodiscard]] static std::string name_of(int number);
    [[nodiscard]] static std::string id_of(int number);
    /// The number of the one whose name or identity this is.
    [[nodiscard]] static int number_in(std::string_view words);

    // The program's life.
    void start();
    void crash();
    void leave();
    [[nodiscard]] bool running() const { return peer.running(); }

    // The person. Each expects what the program does next, and has it do so.
    void send_to(std::vector<int> const& numbers, std::string_view text);
    void send_to_all(std::string_view text);
    void send_to_group(std::vector<int> const& members, std::string_view text);
    void answer(forms::Popup& popup, std::string_view text);
    void answer_all(forms::Popup& popup, std::string_view text);
    void forward(forms::Popup& popup, int number);
    void close(forms::Popup& popup) { peer.person.click(popup, popup.Command1); }
    void go_away(std::size_t response);
    void come_back();
    [[nodiscard]] bool away() const { return absence_.has_value(); }

    /// The numbers that stand in the list of recipients, but the own one.
    [[nodiscard]] std::vector<int> recipients() const;
    [[nodiscard]] std::vector<forms::Popup*> popups() const;

    /// Catches up with what the program has taken off its queue.
    void catch_up();

    // Whether the program and its disk hold what the ledgers say.
    void check_slots() const;
    void check_history() const;
    void check_logs() const;
    /// `seen` is what the segment has seen of this host.
    void check_sent(Texts const& seen) const;
    [[nodiscard]] std::size_t messages() const { return sent_.size(); }

    sim::Peer& peer;

private:
    void handled(std::string_view datagram);
    void received(network::wire::Message const& message);
    void stood_in(network::wire::Message const& message);
    void auto_row(std::string_view kind, network::wire::Message const& message);
    void expect_sent(std::string_view recipient, std::string_view body);
    void expect_log(std::string_view word, std::string_view target, std::string_view text);
    void expect_reply(std::string_view target, std::string_view recipient,
                      forms::Popup const& popup, std::string_view text);
    /// A row of a message that was written in the main window.
    void expect_to(std::string_view target, std::string_view text, int tab, int place);
    void pick(std::vector<int> const& numbers);

    std::string const name_;
    std::string const id_;
    Habits const habits_;
    Absence absence_;
    std::deque<std::string> arrived_; ///< and not yet known to be off the queue
    LogLedger log_;
    HistoryLedger history_;
    Texts sent_; ///< every message datagram
};

} // namespace talk
