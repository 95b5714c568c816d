#include "demo/scenes/scenes.h"
#include "demo/seen.h"

#include <algorithm>

namespace demo::scenes {

namespace {

bool all_have_found_each_other(Stage& stage)
{
    auto const& birds = cast::early_birds;
    return std::ranges::all_of(birds, [&](cast::Member const& member) {
        auto& alice = stage.peer(cast::alice);
        return seen::has_on_list(alice, stage.bytes(member.name)) &&
               seen::has_on_list(stage.peer(member), cast::alice.name);
    });
}

} // namespace

void coming_in(Stage& stage)
{
    stage.tell("Eleven colleagues are at work already. You are Alice Meyer, it is your first day, "
               "and you start the program.");
    auto& alice = stage.show(stage.arrives(cast::alice), Desk::Side::left);
    alice.use_tray();
    alice.start([&] {
        alice.picture("loading", "splash");
        alice.fill_box(cast::alice.name);
        alice.picture_of_box("box-name");
        stage.tell(
            "It asks for your name. Nothing else needs to be set up, and there is no server.");
        alice.answer_box("OK");
    });
    stage.comes_about("Everybody is on your list, and you are on everybody's.",
                      [&] { return all_have_found_each_other(stage); });
}

} // namespace demo::scenes
