#pragma once

#include <array>
#include <string>
#include <string_view>

/// What the floors do with texts: the plainest code that does the same with an 8-bit character set.
namespace bench {

/// `part` as often as it takes to make `length` characters.
inline std::string repeated(std::string_view part, std::size_t length)
{
    std::string text;
    text.reserve(length + part.size());
    while (text.size() < length) {
        text += part;
    }
    text.resize(length);
    return text;
}

inline std::array<char, 256> const capitals = [] {
    std::array<char, 256> table{};
    for (int letter = 0; letter < 256; ++letter) {
        bool const small = letter >= 'a' && letter <= 'z';
        table[static_cast<std::size_t>(letter)] = static_cast<char>(small ? letter - 32 : letter);
    }
    return table;
}();

inline char plain_upper(char letter)
{
    return capitals[static_cast<unsigned char>(letter)];
}

inline bool plain_same(std::string_view one, std::string_view other)
{
    if (one.size() != other.size()) {
        return false;
    }
    for (std::size_t place = 0; place < one.size(); ++place) {
        if (plain_upper(one[place]) != plain_upper(other[place])) {
            return false;
        }
    }
    return true;
}

/// The place of the first case-blind occurrence, or the text's length.
inline std::size_t plain_find(std::string_view text, std::string_view wanted, std::size_t from = 0)
{
    for (; from + wanted.size() <= text.size(); ++from) {
        if (plain_same(text.substr(from, wanted.size()), wanted)) {
            return from;
        }
    }
    return text.size();
}

} // namespace bench
