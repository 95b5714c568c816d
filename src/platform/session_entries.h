#pragma once

#include <string>
#include <string_view>

namespace platform {

/// What this user's session starts: commands by name.
class SessionEntries {
public:
    virtual ~SessionEntries() = default;

    /// The command, or the empty text when there is none or it cannot be read.
    [[nodiscard]] virtual std::string read(std::string_view name) const = 0;
    /// Whether it could be written.
    [[nodiscard]] virtual bool write(std::string_view name, std::string_view command) = 0;
    /// Whether it could be removed.
    [[nodiscard]] virtual bool remove(std::string_view name) = 0;
};

} // namespace platform
