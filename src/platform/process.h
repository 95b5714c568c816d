#pragma once

#include <string>
#include <string_view>

namespace platform {

/// This process on its desktop.
class Process {
public:
    virtual ~Process() = default;

    /// Whether another copy of this program runs for this user from this program folder.
    [[nodiscard]] virtual bool other_copy_runs() = 0;
    /// All arguments behind the program's name, joined by blanks.
    [[nodiscard]] virtual std::string command_line() const = 0;
    /// The folder of the executable, without a separator at its end.
    [[nodiscard]] virtual std::string program_folder() const = 0;
    /// Stores a text in the per-user settings of the application "Vexlo IM".
    virtual void store_setting(std::string_view section, std::string_view name,
                               std::string_view value) = 0;
    /// Ends the process at once, from nested boxes too. Does not return.
    [[noreturn]] virtual void end(int status) = 0;
};

} // namespace platform
