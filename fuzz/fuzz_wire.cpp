#include "fuzz/check.h"
#include "fuzz/target.h"
#include "network/wire.h"

#include <algorithm>
#include <string>

namespace {

using fuzz::check;
namespace wire = network::wire;

text::CharacterSet const letters = text::CharacterSet::western();

void read_presence(std::string_view row)
{
    auto const presence = wire::parse_presence(row, letters);
    check(presence.has_value() == (row.find('=') != row.npos), "presence is known by its \"=\"");
    if (presence) {
        check(presence->identity.find('=') == std::string::npos, "the first \"=\" separates");
        check(wire::presence(presence->marker, presence->identity, presence->name) ==
                  letters.upper(row),
              "presence is the whole row in upper case");
    }
}

void read_body(std::string_view whole)
{
    auto const [head, main] = wire::split_body(whole);
    if (whole.find(wire::head_end) == whole.npos) {
        check(head.empty() && main == whole.substr(std::min<std::size_t>(1, whole.size())),
              "a body without a head loses its first character");
        return;
    }
    check(head.ends_with('>'), "a head ends in \">\"");
    check(std::string(head) + " " + std::string(main) == whole, "a body is its head and its text");
}

void read_message(std::string_view row)
{
    auto const message = wire::parse_message(row);
    check(message.has_value() == (std::ranges::count(row, ']') >= 2),
          "a message is known by its brackets");
    if (!message) {
        return;
    }
    check(message->sender.find(']') == message->sender.size() - 1, "the first \"]\" ends a sender");
    check(message->recipient.find(']') == message->recipient.size() - 1,
          "the second \"]\" ends a recipient");
    check(wire::message(message->sender, message->recipient, message->body) == row,
          "a message is its parts");
    read_body(message->body);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    auto const row = fuzz::as_text(bytes, size);
    if (wire::is_presence(row)) {
        read_presence(row);
    }
    read_message(row);
    read_body(row);
    return 0;
}
