#include "fuzz/check.h"
#include "fuzz/target.h"
#include "sim/office.h"
#include "text/failure.h"

#include <string>

namespace {

using fuzz::check;

std::string saved(sim::Peer& peer)
{
    peer.forms().settings.SAVEBUTTONS.run();
    peer.forms().settings.loadbuttons.run();
    return peer.files.content("buttons.txt");
}

void check_buttons(sim::Peer& peer)
{
    auto const& frmMain = peer.frmMain();
    for (std::size_t number = 1; number < frmMain.qb.size(); ++number) {
        check(frmMain.qb[number].enabled != frmMain.qb[number].caption.empty(),
              "a button with a caption can be pressed");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    auto const file = fuzz::as_text(bytes, size);
    sim::Office office;
    auto& peer = office.host("ROOM12", "alice");
    peer.files.put("buttons.txt", file);
    bool const whole = text::attempt([&] { peer.forms().settings.loadbuttons.run(); });
    check(peer.files.content("buttons.txt") == file, "loading leaves the file alone");
    if (!whole) {
        return 0;
    }
    check_buttons(peer);
    auto const once = saved(peer);
    check_buttons(peer);
    // A caption with a quote in it is cut there by its first save.
    auto const twice = saved(peer);
    check(file.find('"') != file.npos || twice == once, "a saved file reads the same");
    check(saved(peer) == twice, "a file that was saved twice stays as it is");
    return 0;
}
