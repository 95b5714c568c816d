#pragma once

#include "demo/stage.h"

#include "sim/chance.h"

#include <functional>
#include <map>
#include <string>
#include <utility>

namespace demo {

/// Who sits at the desks once the story is over: they read what comes, answer the person in front,
/// write by themselves now and then, come and go.
class Colleagues {
public:
    /// `stage` must outlive the colleagues.
    explicit Colleagues(Stage& stage);

    /// To be called several times a second.
    void look();

private:
    /// A message window, by its host and slot.
    using Place = std::pair<std::string, std::size_t>;
    struct Reading {
        std::string text;
        sim::Duration until{0};
    };

    static void try_to(std::function<void()> const& action);
    void sit_at(sim::Peer& peer);
    void read(sim::Peer& peer, std::size_t slot);
    void deal_with(sim::Peer& peer, forms::Popup& popup);
    [[nodiscard]] std::string answer_to(std::string const& text);
    void let_something_happen();
    void tell(sim::Peer& peer, char const* what);

    Stage& stage_;
    sim::Peer& in_front_;
    sim::Chance chance_{5};
    std::map<Place, Reading> reading_;
    sim::Duration next_;
    std::size_t happened_ = 0;
};

} // namespace demo
