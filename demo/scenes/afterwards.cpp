#include "demo/scenes/scenes.h"
#include "demo/seen.h"

namespace demo::scenes {

namespace {

void look_into_the_history(Stage& stage, Desk& alice)
{
    auto& program = alice.peer.forms();
    stage.tell("Nothing that was said is lost.");
    alice.press(main_window::history);
    alice.picture("historyfrm", "history");
    alice.double_click(history_window::messages, "A Mr Hill asks for the plans.");
    stage.comes_about("The history has the last hundred messages. A double click shows one again,",
                      [&] {
                          return program.popuplast.window.visible() &&
                                 program.popuplast.messagefrom.caption() == cast::grace.name;
                      });
    alice.picture("popuplast", "popup-recalled");
    alice.press(recalled::close);
    alice.double_click(history_window::messages, "Have you seen the plans?");
    stage.comes_about("or brings back what you wrote, to be sent once more.", [&] {
        return program.frmMain.messagetext.text() == "Have you seen the plans?";
    });
    alice.press(history_window::close);
    alice.press(main_window::clear);
}

void look_into_the_log(Stage& stage, Desk& alice)
{
    auto& log = alice.peer.forms().log;
    alice.choose(main_window::options, "toolsmenu", "View Logs");
    alice.pick(log_window::rows, stage.words(alice.peer.log().back()).section(u'\t', 0, 0));
    alice.picture("log", "log");
    stage.comes_about("The log has all of the day.", [&] {
        return log.window.visible() && log.Text1.text().find("Mr Hill") != std::string::npos;
    });
    alice.press(log_window::close);
}

} // namespace

void forwarding(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    auto& ines = stage.peer(cast::ines);
    stage.peer(cast::grace).person.send_to(cast::alice.name, "A Mr Hill asks for the plans.");
    stage.comes_about("Grace asks you for something that Inês knows.", [&] {
        return seen::reads(alice.peer, cast::grace.name, "A Mr Hill asks for the plans.");
    });
    alice.press(popup::forward);
    alice.pick(main_window::users, cast::ines.name);
    alice.picture("frmMain", "main-forwarding");
    alice.press(main_window::send);
    stage.comes_about("You forward it, and Inês has it under Grace's name.", [&] {
        return seen::reads(ines, cast::grace.name, "I'm forwarding this to you.");
    });
}

void what_was_said(Stage& stage)
{
    look_into_the_history(stage, stage.desk(cast::alice));
    look_into_the_log(stage, stage.desk(cast::alice));
}

void coming_and_going(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    auto& henrik = stage.peer(cast::henrik);
    auto& mei = stage.arrives(cast::mei);
    stage.tell("Who comes, and who goes, is told to everybody.");
    mei.boxes.will_enter(cast::mei.name);
    mei.start();
    stage.comes_about("Mei comes in and is on your list.",
                      [&] { return seen::has_on_list(alice.peer, cast::mei.name); });
    henrik.person.leave();
    stage.comes_about("Henrik goes home, and your status line tells it.", [&] {
        return !henrik.running() && seen::status(alice.peer) == "HENRIK OLSEN has signed off";
    });
}

void into_the_background(Stage& stage)
{
    auto& alice = stage.desk(cast::alice);
    auto& kim = stage.peer(cast::kim);
    alice.press(main_window::close, [&] {
        alice.picture_of_box("box-close");
        stage.tell("You close the window, and leave the program in the background.");
        alice.answer_box("Yes");
    });
    kim.person.send_to(cast::alice.name, "Coffee?");
    stage.comes_about("The window has gone, and Kim still reaches you.", [&] {
        return !alice.peer.frmMain().window.visible() &&
               seen::reads(alice.peer, cast::kim.name, "KIM PARK> Coffee?");
    });
    alice.picture_of_menu("closepopups", "menu-tray");
    alice.picture_of_menu("toolsmenu", "menu-options");
    alice.picture_of_menu("autores", "menu-away");
    alice.press(popup::close);
    alice.peer.enter([&] { alice.peer.tray_icon.left_pressed(); });
    stage.comes_about("The icon in the panel brings the window back.",
                      [&] { return alice.peer.frmMain().window.visible(); });
}

} // namespace demo::scenes
