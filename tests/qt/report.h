#pragma once

namespace desk {

/// This program once more, as one whose first handler fails: what its box says goes to standard
/// output.
inline constexpr auto fails = "--fails";
int fail(int argc, char** argv);

} // namespace desk
