#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Values of the surroundings by name: "computername", "username", "USERPROFILE", "TEMP".
class Environment {
public:
    virtual ~Environment() = default;

    /// The process environment's value under the name as given, or in upper case; else what the
    /// desktop says (host name, login name, home folder, temporary folder); else empty.
    [[nodiscard]] virtual std::string value(std::string_view name) const = 0;

    /// The process environment's own value, without the desktop's stand-in; empty when it is not
    /// set.
    [[nodiscard]] virtual std::string own_value(std::string_view name) const = 0;
};

} // namespace platform
