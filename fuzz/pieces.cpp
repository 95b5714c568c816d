#include "fuzz/pieces.h"

namespace fuzz {

namespace {

constexpr char escape = '\\';

} // namespace

std::string Pieces::next()
{
    std::string text;
    while (!empty()) {
        char const letter = input_[place_++];
        if (letter == escape && !empty() && input_[place_++] != escape) {
            break;
        }
        text += letter;
    }
    return text;
}

std::string piece(std::string_view text)
{
    std::string whole;
    for (char const letter : text) {
        whole.append(letter == escape ? 2 : 1, letter);
    }
    return whole + escape + '\n';
}

} // namespace fuzz
