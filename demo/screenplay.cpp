#include "demo/screenplay.h"

#include "demo/scenes/scenes.h"

#include <array>

namespace demo {

namespace {

constexpr std::array scenes_in_order{
    Scene{"Coming in", scenes::coming_in},
    Scene{"Somebody writes", scenes::somebody_writes},
    Scene{"Writing", scenes::writing},
    Scene{"One key", scenes::one_key},
    Scene{"To everybody", scenes::to_everybody},
    Scene{"Groups", scenes::groups},
    Scene{"Options", scenes::options},
    Scene{"Away", scenes::away},
    Scene{"Forwarding", scenes::forwarding},
    Scene{"What was said", scenes::what_was_said},
    Scene{"Coming and going", scenes::coming_and_going},
    Scene{"Into the background", scenes::into_the_background},
};

} // namespace

void open_office(Stage& stage)
{
    using namespace std::chrono_literals;
    for (auto const& member : cast::early_birds) {
        stage.is_at_work(member, {.settings = {{"AUTORESPONSEALLOW", "1"}}});
    }
    stage.office.settle();
    // Each new name empties the lists; one more round fills them.
    for (sim::Peer& peer : stage.office.peers()) {
        peer.enter([&] { peer.frmMain().getusers.run(); });
    }
    stage.office.settle();
}

std::span<Scene const> screenplay()
{
    return scenes_in_order;
}

} // namespace demo
