#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sim {

/// What a host's disk and its session give a program at its start.
struct Setup {
    /// Keys of `settings.txt` and the values that they have instead of the usual ones.
    std::vector<std::pair<std::string, std::string>> settings = {};
    /// Rows of `users.txt`; without any there is no such file.
    std::vector<std::string> users = {};
    std::string command_line = {};
};

/// A saved `settings.txt` with the usual value of every option but those told.
[[nodiscard]] std::string
settings_file(std::string_view name,
              std::vector<std::pair<std::string, std::string>> const& settings = {});

/// Lines, each with its line end.
[[nodiscard]] std::string lines(std::vector<std::string> const& rows);

} // namespace sim
