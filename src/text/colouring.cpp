#include "text/colouring.h"

namespace text {

namespace {

std::size_t found(CharacterSet const& letters, std::string_view words, std::string_view wanted,
                  std::size_t from)
{
    return wanted.empty() ? npos : letters.find(words, wanted, from);
}

} // namespace

Turns own_turns(std::string_view conversation, std::string_view own, std::string_view other,
                CharacterSet const& letters, LastTurn last)
{
    Turns turns;
    std::size_t end = 0; // of the turns found so far: the other party's name stands there
    bool known = false;
    for (std::size_t from = 0;;) {
        auto const begin = found(letters, conversation, own, from);
        if (begin == npos) {
            return turns;
        }
        from = begin + own.size();
        if (known && begin <= end) {
            continue; // It ends where the last one ended, and lies inside it.
        }
        end = found(letters, conversation, other, begin);
        known = true;
        if (end == npos && last == LastTurn::left_out) {
            turns.other_missing = true;
            return turns;
        }
        if (end == npos) {
            end = conversation.size();
        }
        if (end > begin) {
            turns.own.push_back({begin, end - begin});
        }
    }
}

} // namespace text
