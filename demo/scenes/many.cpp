#include "demo/scenes/scenes.h"
#include "demo/seen.h"

#include <algorithm>
#include <array>

namespace demo::scenes {

namespace {

constexpr std::array cooks{cast::elena, cast::kim, cast::lucas};

bool is_cook(cast::Member const& member)
{
    return std::ranges::any_of(
        cooks, [&](cast::Member const& cook) { return cook.computer == member.computer; });
}

void all_close_their_popups(Stage& stage)
{
    for (auto const& member : cast::early_birds) {
        auto& peer = stage.peer(member);
        peer.person.click(peer.frmMain().dissmissall);
    }
}

void make_the_group(Stage& stage, Desk& alice)
{
    alice.press(groups_window::make, [&] {
        alice.fill_box("Kitchen");
        alice.picture_of_box("box-group");
        alice.answer_box("OK");
    });
    alice.pick(groups_window::groups, "Kitchen");
    for (auto const& cook : cooks) {
        alice.pick(groups_window::others, QString(cook.name).toUpper());
        alice.press(groups_window::take_in);
    }
    alice.picture("groups", "groups");
    stage.tell("Elena, Kim and Lucas cook today: they become the group \"Kitchen\".");
    alice.press(groups_window::save);
}

} // namespace

void to_everybody(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    auto& grace = stage.peer(cast::grace);
    stage.tell("News for all of them needs no list of names.");
    grace.person.tick_all();
    grace.person.send("The fire drill is at eleven.");
    stage.comes_about("Grace, at the reception, writes to everybody.", [&] {
        return seen::reads(alice.peer, cast::grace.name, "(To All) The fire drill is at eleven.");
    });
    alice.picture("popup0", "popup-to-all");
    alice.press(popup::close);

    alice.press(main_window::to_everybody);
    alice.type(main_window::draft, "There is cake in the kitchen!");
    alice.press(main_window::send);
    stage.comes_about("So do you, and it is on eleven screens at once.", [&] {
        return std::ranges::all_of(cast::early_birds, [&](cast::Member const& member) {
            return seen::reads(stage.peer(member), cast::alice.name,
                               "There is cake in the kitchen!");
        });
    });
    all_close_their_popups(stage);
}

void groups(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    stage.tell("Some people you write to together, again and again.");
    alice.choose(main_window::options, "toolsmenu", "Configure Groups",
                 [&] { make_the_group(stage, alice); });
    alice.open_tab(main_window::tabs, 1);
    alice.pick(main_window::groups, "KITCHEN");
    alice.type(main_window::draft, "What is for lunch?");
    alice.picture("frmMain", "main-groups");
    alice.press(main_window::send);
    stage.comes_about("A message to the group reaches the three, and nobody else.", [&] {
        return std::ranges::all_of(cast::early_birds, [&](cast::Member const& member) {
            auto& peer = stage.peer(member);
            return is_cook(member) ? seen::reads(peer, cast::alice.name, "What is for lunch?")
                                   : !seen::hears(peer, cast::alice.name);
        });
    });
    all_close_their_popups(stage);
    alice.open_tab(main_window::tabs, 0);
}

} // namespace demo::scenes
