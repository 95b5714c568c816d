#pragma once

#include <string>

namespace core {

inline constexpr int major_version = 1;
inline constexpr int minor_version = 5;
inline constexpr int revision = 3;

/// "1.5.3"
[[nodiscard]] inline std::string version_text()
{
    return std::to_string(major_version) + "." + std::to_string(minor_version) + "." +
           std::to_string(revision);
}

} // namespace core
