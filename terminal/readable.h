#pragma once

#include "qt/codec.h"

#include <QString>

#include <concepts>
#include <string_view>

namespace terminal {

/// Bytes of the office as words for a terminal, on one line: its letters as letters, and whatever
/// could steer a terminal as an escape: `\x1b`, `\r`.
[[nodiscard]] QString readable(qt::Codec const& codec, std::string_view bytes);

/// "1 datagram", "2 datagrams".
[[nodiscard]] QString datagrams(std::integral auto count)
{
    return QString::number(count) + QLatin1String(count == 1 ? " datagram" : " datagrams");
}

/// Whether a character shows itself and does nothing else.
[[nodiscard]] bool is_harmless(QChar letter);

} // namespace terminal
