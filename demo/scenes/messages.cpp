#include "demo/scenes/scenes.h"
#include "demo/seen.h"

namespace demo::scenes {

void somebody_writes(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    auto& bob = stage.peer(cast::bob);

    bob.person.send_to(cast::alice.name, "Are you coming to lunch?");
    stage.comes_about("A window pops up in front of you: Bob asks \"Are you coming to lunch?\"",
                      [&] {
                          return seen::reads(alice.peer, cast::bob.name,
                                             "BOB HARTMANN> Are you coming to lunch?");
                      });
    alice.picture("popup0", "popup");

    stage.tell("A green button answers with one click.");
    alice.press(popup::answer_yes);
    stage.comes_about("Bob reads \"Yes\", and the window on your screen has gone.", [&] {
        return seen::reads(bob, cast::alice.name, "ALICE MEYER> Yes") &&
               !seen::hears(alice.peer, cast::bob.name);
    });
}

void writing(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    auto& clara = stage.show(stage.peer(cast::clara), Desk::Side::right);
    stage.tell("The window to the right is Clara's. You pick her name, write, and press one key.");
    alice.pick(main_window::users, cast::clara.name);
    alice.type(main_window::draft, "Lunch at noon?");
    alice.picture("frmMain", "main");
    alice.press_key(main_window::draft, Qt::Key_Return, Qt::ControlModifier);
    stage.comes_about("It pops up on Clara's screen.", [&] {
        return seen::reads(clara.peer, cast::alice.name, "ALICE MEYER> Lunch at noon?");
    });

    clara.type(popup::reply, "Yes, the usual place");
    clara.picture("popup0", "popup-answering");
    clara.press_key(popup::reply, Qt::Key_Return, Qt::ControlModifier);
    stage.comes_about(
        "She answers in that window, and you read both: what you wrote, and the answer.", [&] {
            return seen::reads(alice.peer, cast::clara.name,
                               "ALICE MEYER> Lunch at noon? / "
                               "CLARA NOVAK> Yes, the usual place");
        });
    alice.picture("popup0", "popup-both-turns");
    alice.press(popup::close);
}

void one_key(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    auto& farid = stage.peer(cast::farid);
    stage.tell("What you write every day is on a button and on a function key. You press F4.");
    alice.pick(main_window::users, cast::farid.name);
    alice.press_key(main_window::draft, Qt::Key_F4);
    stage.comes_about("Farid reads \"Are you busy?\"", [&] {
        return seen::reads(farid, cast::alice.name, "ALICE MEYER> Are you busy?");
    });
}

} // namespace demo::scenes
