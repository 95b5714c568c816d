#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace text {

inline constexpr std::size_t npos = std::string_view::npos;

/// The letters of the office's 8-bit character set: which byte is the capital or the small form of
/// which. One character is one byte, so every length, cut and comparison is exact.
class CharacterSet {
public:
    using Table = std::array<unsigned char, 256>;

    /// Tables from byte to byte; a byte without another form maps to itself.
    CharacterSet(Table const& upper, Table const& lower) : upper_(upper), lower_(lower) {}

    /// The Western set, for tests and where the locale tells nothing.
    [[nodiscard]] static CharacterSet western();

    [[nodiscard]] char upper(char letter) const { return mapped(upper_, letter); }
    [[nodiscard]] char lower(char letter) const { return mapped(lower_, letter); }
    [[nodiscard]] std::string upper(std::string_view words) const;
    [[nodiscard]] std::string lower(std::string_view words) const;

    /// In each blank-separated word the first letter is capital and the others are small:
    /// `[ROOM12\ALICE]` gives
    /// `[Room12\alice]`.
    [[nodiscard]] std::string proper(std::string_view words) const;

    /// Whether both texts are the same when the case of letters does not count.
    [[nodiscard]] bool same(std::string_view one, std::string_view other) const;

    /// The order of sorted lists: case-blind, then by bytes.
    [[nodiscard]] bool before(std::string_view one, std::string_view other) const;

    /// Place of the first case-blind occurrence at or after `from`, or npos. An empty `wanted` is
    /// found at `from` when that lies inside the text.
    [[nodiscard]] std::size_t find(std::string_view words, std::string_view wanted,
                                   std::size_t from = 0) const;

private:
    [[nodiscard]] static char mapped(Table const& table, char letter)
    {
        return static_cast<char>(table[static_cast<unsigned char>(letter)]);
    }
    [[nodiscard]] bool is_letter(char letter) const
    {
        return upper(letter) != letter || lower(letter) != letter;
    }

    Table upper_;
    Table lower_;
};

} // namespace text
