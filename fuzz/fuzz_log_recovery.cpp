#include "fuzz/check.h"
#include "fuzz/target.h"
#include "sim/office.h"

#include <string>
#include <vector>

namespace {

using fuzz::check;

constexpr std::size_t most_rows = 301;

/// The lines of a text, read character by character.
std::vector<std::string> lines_of(std::string_view text)
{
    std::vector<std::string> lines;
    bool open = false;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (!open) {
            lines.emplace_back();
        }
        open = text[place] != '\r' && text[place] != '\n';
        if (open) {
            lines.back() += text[place];
        } else if (text.substr(place, 2) == "\r\n") {
            ++place;
        }
    }
    return lines;
}

void check_log(sim::Peer& peer, std::string_view left_over)
{
    auto rows = lines_of(left_over);
    rows.insert(rows.begin(), "11-15-26:03:15p:Vexlo IM shutdown correctly.\t\r\n---");
    rows.emplace_back("11-15-26:03:15p:Vexlo IM.\t\r\n---");
    std::string file;
    for (std::string const& row : rows) {
        file += row + "\r\n";
    }
    bool const rolled = rows.size() > most_rows;
    check(peer.log() == (rolled ? std::vector<std::string>{} : rows), "every line is a row");
    check(peer.files.has("logs/logtemp.txt") != rolled, "a long log is rolled");
    check(peer.files.content(rolled ? "logs/log261115151500.txt" : "logs/logtemp.txt") == file,
          "every line is on disk again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    auto const left_over = fuzz::as_text(bytes, size);
    sim::Office office;
    auto& peer = office.host("ROOM12", "alice");
    peer.prepare("Alice");
    peer.files.put("logs/logtemp.txt", left_over);
    peer.start();
    check(peer.running(), "a left-over log does not stop the start");
    check_log(peer, left_over);
    return 0;
}
