#include "demo/overheard.h"

#include "demo/seen.h"

#include "network/wire.h"

namespace demo {

std::vector<std::string> Overheard::take()
{
    std::vector<std::string> lines;
    for (auto const& sent = segment_.sent(); heard_ < sent.size(); ++heard_) {
        std::string const& bytes = *sent[heard_].bytes;
        auto const message = network::wire::parse_message(bytes);
        if (message && !network::wire::is_presence(bytes)) {
            lines.push_back(seen::in_one_line(message->body));
        }
    }
    return lines;
}

} // namespace demo
