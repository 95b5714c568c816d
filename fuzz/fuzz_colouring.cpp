#include "controls/text_box.h"
#include "fuzz/check.h"
#include "fuzz/pieces.h"
#include "fuzz/target.h"
#include "text/colouring.h"

#include <string>

namespace {

using fuzz::check;

text::CharacterSet const letters = text::CharacterSet::western();

struct Talk {
    std::string own;
    std::string other;
    std::string conversation;
};

bool begins_with(std::string_view words, std::string_view name)
{
    return letters.same(words.substr(0, name.size()), name);
}

void check_turns(Talk const& talk, text::LastTurn last)
{
    auto const turns = text::own_turns(talk.conversation, talk.own, talk.other, letters, last);
    std::size_t place = 0;
    for (auto const& [start, length] : turns.own) {
        check(start >= place, "turns stand in order, without overlap");
        check(length > 0, "no turn is empty");
        place = start + length;
        check(place <= talk.conversation.size(), "turns lie inside the conversation");
        auto const rest = std::string_view(talk.conversation).substr(start);
        check(begins_with(rest, talk.own), "a turn begins with the own name");
        bool const to_the_end =
            last == text::LastTurn::to_the_end && place == talk.conversation.size();
        check(to_the_end || begins_with(rest.substr(length), talk.other),
              "a turn ends at the other party's name");
    }
    check(turns.own.empty() || !talk.own.empty(), "an empty name is found nowhere");
}

void check_runs(Talk const& talk)
{
    controls::RichText shown;
    shown.set_text(talk.conversation);
    shown.paint_over({255, 0, 0},
                     text::own_turns(talk.conversation, talk.own, talk.other, letters).own, {});
    std::size_t place = 0;
    for (auto const& run : shown.runs()) {
        check(run.start == place && run.length > 0, "every character has one colour");
        place += run.length;
    }
    check(place == talk.conversation.size(), "the colours reach the end");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    fuzz::Pieces pieces(fuzz::as_text(bytes, size));
    Talk talk;
    talk.own = pieces.next();
    talk.other = pieces.next();
    talk.conversation = pieces.next();
    check_turns(talk, text::LastTurn::left_out);
    check_turns(talk, text::LastTurn::to_the_end);
    check_runs(talk);
    return 0;
}
