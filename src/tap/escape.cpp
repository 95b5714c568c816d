#include "tap/escape.h"

#include <array>
#include <charconv>
#include <utility>

namespace tap {

namespace {

using Short = std::pair<char, char>;

/// A byte, and the letter behind the backslash that stands for it.
constexpr std::array shorts{Short{'\\', '\\'}, Short{'"', '"'}, Short{'\r', 'r'}, Short{'\n', 'n'},
                            Short{'\t', 't'}};
constexpr std::string_view digits = "0123456789abcdef";

bool is_printable(char letter)
{
    return letter >= ' ' && letter <= '~';
}

std::string escape_of(char letter)
{
    for (auto const& [byte, name] : shorts) {
        if (byte == letter) {
            return {'\\', name};
        }
    }
    if (is_printable(letter)) {
        return {letter};
    }
    auto const value = static_cast<unsigned char>(letter);
    return {'\\', 'x', digits[value / 16U], digits[value % 16U]};
}

std::optional<char> byte_of_digits(std::string_view two)
{
    if (two.size() != 2 || two.find_first_not_of(digits) != two.npos) {
        return std::nullopt;
    }
    unsigned value = 0;
    std::from_chars(two.data(), two.data() + two.size(), value, 16);
    return static_cast<char>(value);
}

/// The byte at the head of `text`, which loses what stands for it.
std::optional<char> take_byte(std::string_view& text)
{
    auto const take = [&](std::size_t count) {
        auto const head = text.substr(0, count);
        text.remove_prefix(head.size());
        return head;
    };
    char const first = take(1).front();
    if (first != '\\') {
        return is_printable(first) && first != '"' ? std::optional(first) : std::nullopt;
    }
    auto const name = take(1);
    for (auto const& [byte, letter] : shorts) {
        if (name == std::string_view(&letter, 1)) {
            return byte;
        }
    }
    return name == "x" ? byte_of_digits(take(2)) : std::nullopt;
}

} // namespace

std::string escaped(std::string_view bytes)
{
    std::string text;
    for (char const letter : bytes) {
        text += escape_of(letter);
    }
    return text;
}

std::optional<std::string> unescaped(std::string_view text)
{
    std::string bytes;
    while (!text.empty()) {
        auto const byte = take_byte(text);
        if (!byte) {
            return std::nullopt;
        }
        bytes += *byte;
    }
    return bytes;
}

} // namespace tap
