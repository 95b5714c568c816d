#include "demo/scenes/scenes.h"
#include "demo/seen.h"

#include <array>

namespace demo::scenes {

namespace {

constexpr std::array pages{"settings-general", "settings-send-buttons", "settings-responses",
                           "settings-away", "settings-admin"};
constexpr int away_page = 3;
constexpr int everybody = 12;
constexpr std::size_t in_a_meeting = 2;

void look_through_the_options(Desk& alice)
{
    for (int page = 0; page < static_cast<int>(pages.size()); ++page) {
        alice.open_tab(settings_window::tabs, page);
        if (page == away_page) {
            alice.press(settings_window::enable_away);
        }
        alice.picture("settings", pages.at(static_cast<std::size_t>(page)));
    }
    alice.open_tab(settings_window::tabs, away_page);
    alice.press(settings_window::choose_forward, [&] {
        alice.pick(forward_dialog::names, cast::farid.name);
        alice.picture("fwdtofrm", "forward-to");
        alice.press(forward_dialog::cancel);
    });
    alice.press(settings_window::save);
}

} // namespace

void options(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    stage.tell("Your name, sounds, the buttons, what answers for you: it is all in the options.");
    alice.choose(main_window::options, "toolsmenu", "Change Settings",
                 [&] { look_through_the_options(alice); });
    stage.comes_about("You have switched on that your program may answer for you.", [&] {
        return alice.peer.frmMain().autorespond.visible &&
               alice.peer.settings().autoresmaster.on() &&
               !alice.peer.settings().window.visible() &&
               seen::listed(alice.peer) == everybody; // A save asks once more who is there.
    });
}

void away(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    auto& david = stage.peer(cast::david);
    david.person.choose(david.forms().menuform.autores, in_a_meeting);
    stage.tell("David is in a meeting. You ask him all the same.");
    alice.pick(main_window::users, cast::david.name);
    alice.type(main_window::draft, "Have you seen the plans?");
    alice.press(main_window::send);
    stage.comes_about("His program answers for him: \"(Auto Resp) I'm in a meeting\".", [&] {
        return seen::reads(alice.peer, cast::david.name,
                           "DAVID OKAFOR> (Auto Resp) I'm in a meeting");
    });
    alice.picture("popup0", "popup-auto-response");
    alice.press(popup::close);

    auto& jonas = stage.peer(cast::jonas);
    alice.choose(main_window::away, "autores", "I'm away from my desk");
    alice.picture("frmMain", "main-away");
    jonas.person.send_to(cast::alice.name, "The door is repaired.");
    stage.comes_about("You leave your desk, too. Jonas writes, and your program tells him so.",
                      [&] {
                          return seen::reads(jonas, cast::alice.name,
                                             "ALICE MEYER> (Auto Resp) I'm away from my desk") &&
                                 !seen::hears(alice.peer, cast::jonas.name);
                      });
    alice.choose(main_window::away, "autores", "Auto Respond Off");
}

} // namespace demo::scenes
