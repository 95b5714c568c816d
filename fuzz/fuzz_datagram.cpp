#include "fuzz/check.h"
#include "fuzz/pieces.h"
#include "fuzz/target.h"
#include "network/wire.h"
#include "sim/office.h"
#include "text/numbers.h"

#include <algorithm>
#include <string>

namespace {

using fuzz::check;
using namespace std::chrono_literals;

constexpr int slots = 10;
constexpr int most_history_rows = 100;
constexpr int most_log_rows = 301;
constexpr sim::Duration tick = 120ms;

/// The bits of an input's first byte: who sits in front of the program.
enum Mode : unsigned {
    answers_when_away = 1,
    forwards_when_away = 2,
    replies_to_all = 4,
    sees_own = 8,
    hides_own_name = 16,
    knows_others = 32,
    has_a_box_open = 64,
};

char const* flag(bool on)
{
    return on ? "1" : "0";
}

sim::Setup setup_of(unsigned mode)
{
    sim::Setup setup;
    setup.settings = {{"REPLYTOALL", flag((mode & replies_to_all) != 0)},
                      {"SHOWOWN", flag((mode & sees_own) != 0)},
                      {"SHOWMEINLIST", flag((mode & hides_own_name) == 0)},
                      {"AUTORESPONSEMSG3", "Forward to: BOB"}};
    if ((mode & knows_others) != 0) {
        setup.users = {"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM07\\BOB]=BOB"};
    }
    return setup;
}

void go_away(sim::Peer& peer, unsigned mode)
{
    constexpr std::size_t answer = 0;
    constexpr std::size_t forward = 3;
    if ((mode & (answers_when_away | forwards_when_away)) != 0) {
        auto const entry = (mode & forwards_when_away) != 0 ? forward : answer;
        peer.enter([&] { peer.forms().menuform.autores.choose(entry); });
    }
}

/// A piece's first byte says how long the datagram is made by repeating it, and how much time
/// passes behind its arrival.
void receive(sim::Office& office, sim::Peer& peer, std::string_view piece)
{
    auto const order = piece.empty() ? 0U : static_cast<unsigned char>(piece.front());
    constexpr std::size_t length_step = 2114; // 31 steps make the largest datagram
    std::string datagram(piece.substr(std::min<std::size_t>(1, piece.size())));
    auto const length = std::min(order / 8 * length_step, sim::Segment::largest_datagram);
    for (auto const part = datagram; !part.empty() && datagram.size() < length;) {
        datagram += part;
    }
    datagram.resize(std::min(datagram.size(), sim::Segment::largest_datagram));
    peer.listening.receive(datagram);
    office.run_for(order % 8 * tick);
}

void receive_all(sim::Office& office, sim::Peer& peer, unsigned mode, fuzz::Pieces& pieces)
{
    auto& frmMain = peer.frmMain();
    if ((mode & has_a_box_open) != 0) {
        peer.enter([&] { frmMain.boxopen.set(1); });
    }
    while (!pieces.empty()) {
        receive(office, peer, pieces.next());
    }
    peer.enter([&] {
        frmMain.boxopen.set(0);
        if (!frmMain.cue.empty()) {
            frmMain.Timer3.enable();
        }
    });
}

void check_slots(sim::Peer& peer)
{
    auto const& frmMain = peer.frmMain();
    auto const stamps = frmMain.popups.rows();
    auto const wins = frmMain.wins.rows();
    check(stamps.size() == slots && wins.size() == slots, "there are ten popups");
    int free = 0;
    for (int slot = 0; slot < slots; ++slot) {
        bool const is_free = wins[static_cast<std::size_t>(slot)] == std::to_string(slot);
        bool const is_busy = wins[static_cast<std::size_t>(slot)] == "-";
        check(is_free || is_busy, "a slot is free or busy");
        check(is_free || peer.popup(static_cast<std::size_t>(slot)).window.visible(),
              "a busy slot is on show");
        free += is_free ? 1 : 0;
    }
    check(std::ranges::count(stamps, "-") == free, "both tables agree");
    check(frmMain.pucount.caption() == std::to_string(free), "free slots are counted");
}

void check_queue(sim::Peer& peer)
{
    auto const& frmMain = peer.frmMain();
    auto const depth = text::leading_whole_number(frmMain.cuetotal.caption());
    check(frmMain.traffic.value() == std::min(100, 4 * depth), "the gauge shows the depth");
    if (frmMain.cue.empty()) {
        check(!frmMain.Timer3.enabled() && depth == 0, "an empty queue rests");
        return;
    }
    auto const& head = frmMain.cue.front();
    check(network::wire::is_presence(head) && head.find('=') == std::string::npos,
          "only a marker without \"=\" blocks the queue");
}

void check_lists(sim::Peer& peer)
{
    auto const& frmMain = peer.frmMain();
    auto const sorted = [&](auto const& one, auto const& other) {
        return frmMain.letters.before(one, other);
    };
    check(std::ranges::is_sorted(frmMain.userlist.rows(), sorted), "the directory is sorted");
    check(std::ranges::is_sorted(frmMain.allusers.rows(), sorted), "the recipients are sorted");
    check(peer.history().count() <= most_history_rows, "the history is trimmed");
    check(peer.forms().log.lstMessages.count() <= most_log_rows, "the log is rolled");
}

/// The next start reads what this run has left.
void check_files(sim::Peer& peer)
{
    peer.enter([&] { peer.forms().historyfrm.savebtn.run(); });
    peer.restart();
    check(peer.running(), "every file is read again");
}

void run(std::string_view input)
{
    auto const mode = input.empty() ? 0U : static_cast<unsigned char>(input.front());
    fuzz::Pieces pieces(input.substr(std::min<std::size_t>(1, input.size())));
    sim::Office office;
    auto& peer = office.peer("ROOM12", "alice", "Alice Meyer", setup_of(mode));
    go_away(peer, mode);

    receive_all(office, peer, mode, pieces);
    bool const is_stuck = !office.settle(20s + 2 * tick * (peer.frmMain().cue.size() + 1));

    check(peer.running(), "no datagram ends the program");
    check(peer.boxes.shown().empty(), "no datagram brings up a box");
    // A forward may come back to its sender, longer each time: that goes on for a while.
    bool const goes_round = is_stuck && (mode & forwards_when_away) != 0;
    if (!goes_round) {
        check_queue(peer);
    }
    check_slots(peer);
    check_lists(peer);
    check_files(peer);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    run(fuzz::as_text(bytes, size));
    return 0;
}
