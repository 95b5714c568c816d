#include "fuzz/check.h"
#include "fuzz/target.h"
#include "sim/office.h"

#include <string>

namespace {

using fuzz::check;

std::string saved(sim::Peer& peer)
{
    peer.forms().groups.closebtn.click(); // saves and loads again
    return peer.files.content("groups.txt");
}

void check_lists(sim::Peer& peer)
{
    constexpr std::size_t tail = 31; // 30 blanks and the slot
    auto const rows = peer.frmMain().List1.rows();
    for (std::string const& row : rows) {
        check(row.size() >= tail && row.back() >= '0' && row.back() <= '9',
              "a group tells its slot");
    }
    check(rows == peer.forms().groups.List1.rows(), "both windows show the same groups");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    auto const file = fuzz::as_text(bytes, size);
    sim::Office office;
    auto& peer = office.host("ROOM12", "alice");
    peer.prepare("Alice", {.users = {"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM07\\BOB]=BOB"}});
    peer.files.put("groups.txt", file);
    peer.frmMain().loadusers.run();
    peer.forms().groups.loadgroups.run();
    check(peer.files.content("groups.txt") == file, "loading leaves the file alone");
    check_lists(peer);

    auto const once = saved(peer);

    check_lists(peer);
    // What quotes have kept together falls apart when it is saved without them.
    check(file.find('"') != file.npos || saved(peer) == once, "a saved file reads the same");
    return 0;
}
