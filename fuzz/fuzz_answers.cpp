#include "fuzz/check.h"
#include "fuzz/pieces.h"
#include "fuzz/target.h"
#include "sim/office.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace {

using fuzz::check;

/// The buttons that ask for a text.
constexpr std::size_t buttons = 7;

std::array<controls::Button const*, buttons> buttons_of(sim::Peer& peer)
{
    auto const& settings = peer.settings();
    auto const& groups = peer.forms().groups;
    return {&settings.Command1,     &settings.Command2, &settings.Command3, &settings.btnChatPort1,
            &settings.btnChatPort2, &groups.Command2,   &groups.Command5};
}

/// A piece's first byte is the button, the rest is what the person answers. A number that does not
/// fit ends the program, and so does a port that cannot be had.
void answer(sim::Office& office, sim::Peer& peer, std::string_view piece)
{
    auto const order = piece.empty() ? 0U : static_cast<unsigned char>(piece.front());
    peer.boxes.will_enter(piece.substr(std::min<std::size_t>(1, piece.size())));
    auto const& button = *buttons_of(peer).at(order % buttons);
    peer.enter([&] { button.click(); });
    office.settle();
}

void check_next_start(sim::Peer& peer)
{
    peer.enter([&] { peer.forms().groups.closebtn.click(); });
    peer.enter([&] { peer.frmMain().saveallsettings.run(); });
    check(peer.running(), "everything that was answered can be saved");
    peer.restart();
    check(peer.running(), "and the next start reads it");
}

void run(fuzz::Pieces& pieces)
{
    sim::Office office;
    auto& peer = office.peer("ROOM12", "alice", "Alice Meyer");
    peer.boxes.answer_all();
    while (!pieces.empty() && peer.running()) {
        answer(office, peer, pieces.next());
    }
    if (peer.running()) {
        check_next_start(peer);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    fuzz::Pieces pieces(fuzz::as_text(bytes, size));
    run(pieces);
    return 0;
}
