#include "fuzz/allocations.h"
#include "fuzz/check.h"
#include "fuzz/target.h"
#include "sim/office.h"
#include "text/failure.h"

namespace {

using fuzz::check;

constexpr int most_rows = 100;
constexpr std::size_t small_change = 64 * 1024;

bool load(sim::Peer& peer, std::string_view file)
{
    fuzz::LargestAllocation const largest;
    bool const whole = text::attempt([&] { peer.forms().historyfrm.loadbtn.run(); });
    // A list of rows takes some memory for each, and a row takes 31 characters of the file at
    // least.
    check(largest.bytes() <= 4 * file.size() + small_change, "the header's word lays out nothing");
    check(peer.files.content("hist.dat") == file, "loading leaves the file alone");
    check(!whole || peer.history().count() <= most_rows, "a loaded list is trimmed");
    return whole;
}

/// A person clicks and recalls every row. A field that holds no number where one is wanted is a
/// failure.
void look_at_rows(sim::Peer& peer)
{
    for (int number = 1; number <= peer.history().count(); ++number) {
        text::attempt([&] { peer.history().choose(number); });
        text::attempt([&] { peer.history().double_clicked.run(); });
    }
}

void save(sim::Peer& peer)
{
    peer.forms().historyfrm.savebtn.run();
    check(peer.history().count() <= most_rows, "a saved list is trimmed");
    load(peer, peer.files.content("hist.dat"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    auto const file = fuzz::as_text(bytes, size);
    sim::Office office;
    auto& peer = office.host("ROOM12", "alice");
    peer.frmMain().friendlyname = "ALICE";
    peer.files.put("hist.dat", file);
    load(peer, file);
    look_at_rows(peer);
    save(peer);
    return 0;
}
