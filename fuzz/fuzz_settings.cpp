#include "fuzz/check.h"
#include "fuzz/target.h"
#include "sim/office.h"
#include "text/failure.h"

#include <string>

namespace {

using fuzz::check;

/// Saves what is loaded, and loads it again; gives the file, or nothing when it does not load.
std::string saved(sim::Peer& peer)
{
    peer.frmMain().saveallsettings.run();
    auto const file = peer.files.content("settings.txt");
    bool const loads = text::attempt([&] { peer.frmMain().loadusers.run(); });
    return loads ? file : std::string();
}

void check_settings(std::string_view file)
{
    sim::Office office;
    auto& peer = office.host("ROOM12", "alice");
    peer.files.put("settings.txt", file);
    if (!text::attempt([&] { peer.frmMain().loadusers.run(); })) {
        return;
    }
    check(peer.files.content("settings.txt") == file, "loading leaves the file alone");
    check(peer.frmMain().away.value() == 0, "every load leaves auto-respond off");

    auto const once = saved(peer);

    // What quotes have kept together falls apart when it is saved without them.
    if (file.find('"') != file.npos) {
        return;
    }
    check(!once.empty(), "a saved file loads");
    check(saved(peer) == once, "a saved file reads the same");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    check_settings(fuzz::as_text(bytes, size));
    return 0;
}
