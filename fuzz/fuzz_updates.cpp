#include "core/web_hosts.h"
#include "fuzz/check.h"
#include "fuzz/pieces.h"
#include "fuzz/target.h"
#include "sim/office.h"
#include "text/failure.h"

#include <algorithm>
#include <string>

namespace {

using fuzz::check;

void check_box(sim::Peer& peer, std::string_view version)
{
    auto const& boxes = peer.boxes.shown();
    check(boxes.size() == 1, "an answer brings up one box");
    auto const& text = boxes.front().text;
    bool const offers_nothing =
        text.ends_with("This is the latest Version.") || text.starts_with("Unable");
    check(offers_nothing || text.find("(" + std::string(version) + ")") != text.npos,
          "an offer quotes the version as it came");
    check(text.find('~') == text.npos, "a tilde ends the version, and is a line end in the news");
}

void run(std::string_view version, std::string_view news)
{
    sim::Office office;
    auto& peer = office.peer("ROOM12", "alice", "Alice Meyer");
    peer.environment.variables["TEMP"] = "/tmp";
    peer.files.put("/tmp/other", "file");
    peer.web.pages[core::web_hosts().update + "/vexloimversion.htm"] = version;
    peer.web.pages[core::web_hosts().update + "/vexloimwhatsnew.htm"] = news;
    peer.boxes.will_answer(platform::Answer::no);

    bool const is_answered = text::attempt([&] { peer.frmMain().updates.run(); });

    check(peer.running(), "a person who says no keeps the program");
    check(!peer.files.has("/tmp/vexloimversion.txt"), "no file is left behind");
    auto const remote = version.substr(0, version.find('~'));
    if (version == "Unable to Connect/err0") {
        check(is_answered, "these words are a server out of reach");
    } else {
        check(is_answered == (std::ranges::count(remote, '.') >= 2),
              "a version is known by its points");
    }
    if (is_answered) {
        check_box(peer, remote);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    fuzz::Pieces pieces(fuzz::as_text(bytes, size));
    auto const version = pieces.next();
    run(version, pieces.next());
    return 0;
}
