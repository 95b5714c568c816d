#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tap {

/// Bytes as plain ASCII that a terminal, a mail and a line of text carry unharmed: what is
/// printable stands for itself, but for `\\` and `\"`; `\r`, `\n` and `\t`; any other byte is `\x`
/// and two digits.
[[nodiscard]] std::string escaped(std::string_view bytes);

/// The bytes again. Empty where `text` holds what escaped() never writes.
[[nodiscard]] std::optional<std::string> unescaped(std::string_view text);

} // namespace tap
