#include "text/colouring.h"

#include <string>
#include <utility>

namespace text {

namespace {

/// One name, and how to find it in a text of the same case. A peer chooses its name and its text,
/// so the time must grow with their lengths alone: no character of the text is looked at again
/// because a name nearly stood there.
class Name {
public:
    explicit Name(std::string letters) : letters_(std::move(letters)), borders_(letters_.size())
    {
        for (std::size_t end = 1, border = 0; end < letters_.size(); ++end) {
            border = grown(border, letters_[end]);
            borders_[end] = border;
        }
    }

    [[nodiscard]] std::size_t size() const { return letters_.size(); }

    /// Its first place at or after `from`, or npos. An empty name is found nowhere.
    [[nodiscard]] std::size_t find(std::string_view words, std::size_t from) const
    {
        if (letters_.empty()) {
            return npos;
        }
        std::size_t matched = 0;
        for (std::size_t place = from; place < words.size(); ++place) {
            matched = grown(matched, words[place]);
            if (matched == letters_.size()) {
                return place + 1 - matched;
            }
        }
        return npos;
    }

private:
    /// How much of the name ends in `letter` when `matched` of it stood in front.
    [[nodiscard]] std::size_t grown(std::size_t matched, char letter) const
    {
        while (matched > 0 && letters_[matched] != letter) {
            matched = borders_[matched - 1];
        }
        return letters_[matched] == letter ? matched + 1 : 0;
    }

    std::string letters_;
    std::vector<std::size_t> borders_; ///< how much of its beginning each part of it ends in
};

} // namespace

Turns own_turns(std::string_view conversation, std::string_view own, std::string_view other,
                CharacterSet const& letters, LastTurn last)
{
    auto const words = letters.upper(conversation);
    Name const own_name(letters.upper(own));
    Name const other_name(letters.upper(other));
    Turns turns;
    std::size_t end = 0; // of the turns found so far: the other party's name stands there
    bool known = false;
    for (std::size_t from = 0;;) {
        auto const begin = own_name.find(words, from);
        if (begin == npos) {
            return turns;
        }
        from = begin + own_name.size();
        if (known && begin <= end) {
            continue; // It ends where the last one ended, and lies inside it.
        }
        end = other_name.find(words, begin);
        known = true;
        if (end == npos && last == LastTurn::left_out) {
            turns.other_missing = true;
            return turns;
        }
        if (end == npos) {
            end = words.size();
        }
        if (end > begin) {
            turns.own.push_back({begin, end - begin});
        }
    }
}

} // namespace text
