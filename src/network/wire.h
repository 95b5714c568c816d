#pragma once

#include "text/character_set.h"

#include <optional>
#include <string>
#include <string_view>

/// Every datagram that peers exchange: how it is written and how it is read.
namespace network::wire {

inline constexpr std::string_view announce = "***";
inline constexpr std::string_view answer = "**-";
inline constexpr std::string_view sign_off = "-**";
inline constexpr std::string_view dash = "---";
/// One blank: sent to see whether the network is back. Readers drop it.
inline constexpr std::string_view probe = " ";

inline constexpr std::string_view to_all = "[ALL]";
/// The recipient field of a name that nobody has.
inline constexpr std::string_view to_nobody = "[---]";

/// Splits a body's sender part from its text.
inline constexpr std::string_view head_end = "> ";

/// Marker, identity, "=", display name.
[[nodiscard]] std::string presence(std::string_view marker, std::string_view identity,
                                   std::string_view name);

/// Sender field, recipient field, body, with nothing between them.
[[nodiscard]] std::string message(std::string_view sender, std::string_view recipient,
                                  std::string_view body);

/// Display name, "> ", text.
[[nodiscard]] std::string signed_text(std::string_view name, std::string_view text);

/// Whether the row begins with one of the markers of announce, answer and sign-off.
[[nodiscard]] bool is_presence(std::string_view row);

struct Presence {
    std::string_view marker; ///< the row's first three characters
    std::string identity;    ///< upper case; whether it has brackets is not looked at
    std::string name;        ///< upper case; may hold further "="
};

/// Empty when the row has no "=". Views into `row`.
[[nodiscard]] std::optional<Presence> parse_presence(std::string_view row,
                                                     text::CharacterSet const& letters);

struct Message {
    std::string_view sender;    ///< through the first "]"
    std::string_view recipient; ///< from there through the second "]"
    std::string_view body;      ///< the rest
};

/// Empty when the row has fewer than two "]". Opening brackets are not looked at. Views into `row`.
[[nodiscard]] std::optional<Message> parse_message(std::string_view row);

struct Body {
    std::string_view head; ///< up to and including the ">" of the first "> "; empty without one
    std::string_view main; ///< what stands behind that "> "
};

/// A body without "> " has an empty head, and its first character is lost: the history relies on
/// it.
[[nodiscard]] Body split_body(std::string_view body);

} // namespace network::wire
