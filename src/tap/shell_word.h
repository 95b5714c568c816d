#pragma once

#include <string>
#include <string_view>

namespace tap {

/// Any text as one word of a command that somebody pastes into a shell, in single quotes.
[[nodiscard]] std::string shell_word(std::string_view text);

} // namespace tap
