#include "tap/shell_word.h"

namespace tap {

std::string shell_word(std::string_view text)
{
    std::string word = "'";
    for (char const letter : text) {
        word += letter == '\'' ? std::string("'\\''") : std::string{letter};
    }
    return word + "'";
}

} // namespace tap
