#include "demo/overheard.h"

#include "demo/seen.h"

#include "network/wire.h"

#include <algorithm>

namespace demo {

namespace wire = network::wire;

namespace {

struct Said {
    std::string text;
    std::vector<std::string> readers; ///< none: everybody
};

std::string line_of(Said const& said)
{
    std::string readers;
    for (std::string const& each : said.readers) {
        readers += (readers.empty() ? "" : ", ") + each;
    }
    return readers.empty() ? said.text : said.text + "  (to " + readers + ")";
}

} // namespace

std::vector<std::string> Overheard::take()
{
    std::vector<Said> all;
    for (auto const& sent = office_.segment.sent(); heard_ < sent.size(); ++heard_) {
        std::string const& bytes = *sent[heard_].bytes;
        auto const message = wire::parse_message(bytes);
        if (!message || wire::is_presence(bytes)) {
            continue;
        }
        auto const text = seen::in_one_line(message->body);
        if (all.empty() || all.back().text != text) {
            all.push_back({text, {}});
        }
        if (message->recipient != wire::to_all) {
            all.back().readers.push_back(name_of(message->recipient));
        }
    }
    std::vector<std::string> lines(all.size());
    std::ranges::transform(all, lines.begin(), line_of);
    return lines;
}

std::string Overheard::name_of(std::string_view identity) const
{
    for (sim::Peer& peer : office_.peers()) {
        if (peer.frmMain().user == identity) {
            return seen::name_of(peer);
        }
    }
    return std::string(identity);
}

} // namespace demo
