#pragma once

#include <map>
#include <string>
#include <string_view>

namespace capacity {

/// What an experiment is told: KEY=VALUE, each with a value of its own where it is not told.
class Arguments {
public:
    /// Throws std::invalid_argument where there is no "=".
    void add(std::string_view told);

    /// Throws std::invalid_argument when the value is no number.
    [[nodiscard]] double number(std::string_view key, double otherwise) const;
    [[nodiscard]] int count(std::string_view key, int otherwise) const
    {
        return static_cast<int>(number(key, otherwise));
    }
    [[nodiscard]] std::string text(std::string_view key, std::string_view otherwise) const;

private:
    std::map<std::string, std::string, std::less<>> values_;
};

} // namespace capacity
