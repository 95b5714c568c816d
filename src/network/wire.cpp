#include "network/wire.h"

#include <algorithm>
#include <array>

namespace network::wire {

namespace {

std::string joined(std::initializer_list<std::string_view> parts)
{
    std::string whole;
    for (std::string_view const part : parts) {
        whole += part;
    }
    return whole;
}

} // namespace

std::string presence(std::string_view marker, std::string_view identity, std::string_view name)
{
    return joined({marker, identity, "=", name});
}

std::string message(std::string_view sender, std::string_view recipient, std::string_view body)
{
    return joined({sender, recipient, body});
}

std::string signed_text(std::string_view name, std::string_view text)
{
    return joined({name, head_end, text});
}

bool is_presence(std::string_view row)
{
    return row.starts_with(announce) || row.starts_with(answer) || row.starts_with(sign_off);
}

std::optional<Presence> parse_presence(std::string_view row, text::CharacterSet const& letters)
{
    auto const separator = row.find('=');
    if (separator == text::npos) {
        return std::nullopt;
    }
    auto const marker = row.substr(0, announce.size());
    // The first "=" may not stand inside the marker, since no marker holds one.
    return Presence{marker, letters.upper(row.substr(marker.size(), separator - marker.size())),
                    letters.upper(row.substr(separator + 1))};
}

std::optional<Message> parse_message(std::string_view row)
{
    auto const first = row.find(']');
    auto const second = first == text::npos ? first : row.find(']', first + 1);
    if (second == text::npos) {
        return std::nullopt;
    }
    return Message{row.substr(0, first + 1), row.substr(first + 1, second - first),
                   row.substr(second + 1)};
}

Body split_body(std::string_view body)
{
    auto const split = body.find(head_end);
    if (split == text::npos) {
        // Without a head the text begins one character late: peers' history files show it so.
        return Body{{}, body.substr(std::min<std::size_t>(1, body.size()))};
    }
    return Body{body.substr(0, split + 1), body.substr(split + head_end.size())};
}

} // namespace network::wire
