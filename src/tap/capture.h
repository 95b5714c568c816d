#pragma once

#include "tap/datagram.h"

#include <string>
#include <string_view>
#include <vector>

/// The capture file: datagrams as lines of text, to be kept, compared, attached to a report, and
/// replayed. docs/captures.md tells the format.
namespace tap::capture {

/// The first line of every capture file, without its line end. It tells the version of the format.
inline constexpr std::string_view head = "vexlo capture 1";

/// A line that says nothing to a reader. What would end the line is left out.
[[nodiscard]] std::string comment(std::string_view words);

/// One datagram as a line, its line end included.
[[nodiscard]] std::string line(Datagram const& datagram);

/// All datagrams of a capture file, in its order. Raises a Failure that tells the first bad line
/// and what is wrong with it, "line 3: the bytes are not in quotes"; its number is that of the
/// line.
[[nodiscard]] std::vector<Datagram> read(std::string_view file);

} // namespace tap::capture
