#include "text/character_set.h"

#include <algorithm>
#include <utility>

namespace text {

namespace {

struct Letters {
    CharacterSet::Table upper{};
    CharacterSet::Table lower{};

    void pair(int capital, int small)
    {
        upper[static_cast<std::size_t>(small)] = static_cast<unsigned char>(capital);
        lower[static_cast<std::size_t>(capital)] = static_cast<unsigned char>(small);
    }

    void range(int first_capital, int last_capital)
    {
        for (int capital = first_capital; capital <= last_capital; ++capital) {
            pair(capital, capital + 0x20);
        }
    }
};

} // namespace

CharacterSet CharacterSet::western()
{
    Letters letters;
    for (std::size_t byte = 0; byte < letters.upper.size(); ++byte) {
        letters.upper[byte] = letters.lower[byte] = static_cast<unsigned char>(byte);
    }
    letters.range('A', 'Z');
    letters.range(0xC0, 0xD6);
    letters.range(0xD8, 0xDE);
    for (auto const& [capital, small] :
         {std::pair{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}}) {
        letters.pair(capital, small);
    }
    return {letters.upper, letters.lower};
}

std::string CharacterSet::upper(std::string_view words) const
{
    std::string result(words);
    std::ranges::transform(result, result.begin(), [this](char letter) { return upper(letter); });
    return result;
}

std::string CharacterSet::lower(std::string_view words) const
{
    std::string result(words);
    std::ranges::transform(result, result.begin(), [this](char letter) { return lower(letter); });
    return result;
}

std::string CharacterSet::proper(std::string_view words) const
{
    std::string result(words);
    bool capital_is_due = true;
    for (char& letter : result) {
        if (letter == ' ') {
            capital_is_due = true;
        } else if (is_letter(letter)) {
            letter = std::exchange(capital_is_due, false) ? upper(letter) : lower(letter);
        }
    }
    return result;
}

bool CharacterSet::same(std::string_view one, std::string_view other) const
{
    return std::ranges::equal(one, other, [this](char a, char b) { return upper(a) == upper(b); });
}

bool CharacterSet::before(std::string_view one, std::string_view other) const
{
    if (one == other) {
        return false;
    }
    auto const folded = [this](char letter) { return static_cast<unsigned char>(lower(letter)); };
    auto const [a, b] = std::ranges::mismatch(one, other, {}, folded, folded);
    if (a == one.end() && b == other.end()) {
        return one < other;
    }
    return b != other.end() && (a == one.end() || folded(*a) < folded(*b));
}

std::size_t CharacterSet::find(std::string_view words, std::string_view wanted,
                               std::size_t from) const
{
    if (from > words.size()) {
        return npos;
    }
    auto const rest = words.substr(from);
    auto const same_letter = [this](char a, char b) { return upper(a) == upper(b); };
    auto const place =
        std::search(rest.begin(), rest.end(), wanted.begin(), wanted.end(), same_letter);
    if (place == rest.end() && !wanted.empty()) {
        return npos;
    }
    return from + static_cast<std::size_t>(place - rest.begin());
}

} // namespace text
