#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace soak {

/// What happened, in order: the last lines for whoever has to find out why, and all of it as one
/// number that two equal runs share.
class Diary {
public:
    void note(std::string line);
    /// What belongs to the run and is no line of its own.
    void fold(std::string_view words);

    [[nodiscard]] std::deque<std::string> const& last_lines() const { return last_; }
    [[nodiscard]] std::uint64_t digest() const { return digest_; }
    /// How many lines there have been.
    [[nodiscard]] std::uint64_t acts() const { return acts_; }

private:
    static constexpr std::size_t kept = 40;

    std::deque<std::string> last_;
    std::uint64_t digest_ = 14695981039346656037ULL; ///< FNV-1a
    std::uint64_t acts_ = 0;
};

} // namespace soak
