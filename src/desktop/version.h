#pragma once

#include <string>
#include <string_view>

namespace desktop {

/// Three numbers with points. Compared as one: A times 100000, plus B times 1000, plus C.
struct Version {
    double major = 0;
    double minor = 0;
    double revision = 0;

    [[nodiscard]] double number() const { return major * 100000 + minor * 1000 + revision; }
};

/// A text A.B.C; C runs to its end. Raises a Failure ("Invalid procedure call or argument", 5)
/// without two points.
[[nodiscard]] Version parse_version(std::string_view text);

/// "1.5.3"
[[nodiscard]] std::string version_text(Version const& version);

} // namespace desktop
