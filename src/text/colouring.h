#pragma once

#include "text/character_set.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace text {

/// A stretch of a text, in characters.
struct Span {
    std::size_t start = 0;
    std::size_t length = 0;

    bool operator==(Span const&) const = default;
};

/// What becomes of an own turn behind which the other party does not speak again.
enum class LastTurn {
    left_out,  ///< it is none of the spans
    to_the_end ///< it runs to the end of the text
};

struct Turns {
    std::vector<Span> own;      ///< the own turns, in order, without overlap
    bool other_missing = false; ///< the search for the other party failed
};

/// The reader's own turns in a conversation: from each own name to the other party's next name.
/// Both searches are case-blind, the own name's text included. An empty name is found nowhere.
[[nodiscard]] Turns own_turns(std::string_view conversation, std::string_view own,
                              std::string_view other, CharacterSet const& letters,
                              LastTurn last = LastTurn::left_out);

} // namespace text
