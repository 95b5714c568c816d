#include "demo/colleagues.h"

#include "demo/seen.h"

#include <array>

namespace demo {

namespace {

using namespace std::chrono_literals;

constexpr auto reading_time = 1800ms;
constexpr std::uint64_t more_at_most_ms = 2500;
constexpr auto between_happenings = 35s;
constexpr double answers_to_all = 0.3;

struct Answer {
    std::string_view word; ///< in small letters
    std::string_view text;
};

constexpr std::array to_words{
    Answer{"lunch", "At noon, the usual place."}, Answer{"coffee", "In five minutes!"},
    Answer{"cake", "Save me a piece, please."},   Answer{"busy", "Not at all, come over."},
    Answer{"thank", "You are welcome."},          Answer{"hello", "Hello! Nice to hear from you."},
    Answer{"ready", "Nearly. Ten more minutes."}, Answer{"see me", "On my way."},
    Answer{"line", "Thanks, I take it."},         Answer{"meeting", "I'll be there."},
};
constexpr std::array<std::string_view, 3> to_questions{"Yes, I think so.", "Let me look.",
                                                       "No idea. Ask Grace, she knows."};
constexpr std::array<std::string_view, 3> to_others{"All right.", "Good to know, thanks.",
                                                    "Fine with me."};

template <std::size_t count>
std::string one_of(std::array<std::string_view, count> const& texts, sim::Chance& chance)
{
    return std::string(texts.at(chance.below(count)));
}

/// Something that happens by itself.
struct Happening {
    cast::Member who;
    char const* text = nullptr; ///< none: comes in, or goes home
};

constexpr std::array happenings{
    Happening{cast::lucas, "The lab is free from three on."}, Happening{cast::henrik, nullptr},
    Happening{cast::elena, "Have you got a minute?"},         Happening{cast::farid, nullptr},
    Happening{cast::bob, "The printer works again."},         Happening{cast::farid, nullptr},
    Happening{cast::mei, "Where do I find the coffee?"},      Happening{cast::henrik, nullptr},
};

} // namespace

Colleagues::Colleagues(Stage& stage)
    : stage_(stage), in_front_(stage.peer(cast::alice)),
      next_(stage.office.scheduler.now() + between_happenings)
{
    for (sim::Peer& peer : stage_.office.peers()) {
        if (&peer != &in_front_ && peer.running()) {
            try_to([&] { peer.person.click(peer.frmMain().dissmissall); });
        }
    }
}

void Colleagues::look()
{
    for (sim::Peer& peer : stage_.office.peers()) {
        if (&peer != &in_front_ && peer.running()) {
            try_to([&] { sit_at(peer); });
        }
    }
    if (stage_.office.scheduler.now() >= next_) {
        next_ += between_happenings;
        try_to([&] { let_something_happen(); });
    }
}

void Colleagues::try_to(std::function<void()> const& action)
{
    try {
        action();
    } catch (sim::Impossible const&) {
        // Whoever is in front uses that colleague's windows himself.
    }
}

void Colleagues::sit_at(sim::Peer& peer)
{
    for (std::size_t slot = 0; slot < peer.forms().popup.size(); ++slot) {
        if (peer.popup(slot).window.visible()) {
            read(peer, slot);
        }
    }
}

void Colleagues::read(sim::Peer& peer, std::size_t slot)
{
    auto& popup = peer.popup(slot);
    auto const now = stage_.office.scheduler.now();
    auto const until =
        now + reading_time + std::chrono::milliseconds(chance_.below(more_at_most_ms));
    auto& reading = reading_[{peer.host.name, slot}];
    if (reading.text != popup.message.text()) {
        reading = {popup.message.text(), until};
    } else if (now >= reading.until) {
        reading = {};
        deal_with(peer, popup);
    }
}

void Colleagues::deal_with(sim::Peer& peer, forms::Popup& popup)
{
    bool const is_for_all = !popup.Label3.caption().empty();
    bool const is_asked = popup.messagefrom.caption() == seen::name_of(in_front_);
    bool const answers = is_asked && (!is_for_all || chance_.happens(answers_to_all));
    if (answers) {
        peer.person.answer(popup, answer_to(popup.message.text()));
        tell(peer, "answers you.");
    } else {
        peer.person.click(popup, popup.Command1);
    }
}

std::string Colleagues::answer_to(std::string const& text)
{
    auto const small = in_front_.frmMain().letters.lower(text.substr(text.rfind('>') + 1));
    for (Answer const& answer : to_words) {
        if (small.find(answer.word) != std::string::npos) {
            return std::string(answer.text);
        }
    }
    bool const is_question = small.find('?') != std::string::npos;
    return one_of(is_question ? to_questions : to_others, chance_);
}

void Colleagues::let_something_happen()
{
    auto const& [who, text] = happenings.at(happened_++ % happenings.size());
    auto* const peer = stage_.find(who);
    if (peer == nullptr) {
        return;
    }
    if (!peer->running()) {
        peer->start();
        tell(*peer, "comes in.");
    } else if (text == nullptr) {
        peer->person.leave();
        tell(*peer, "goes home.");
    } else {
        peer->person.send_to(seen::name_of(in_front_), text);
        tell(*peer, "writes to you.");
    }
}

void Colleagues::tell(sim::Peer& peer, char const* what)
{
    stage_.told(stage_.words(seen::name_of(peer)) + QLatin1Char(' ') + what);
}

} // namespace demo
