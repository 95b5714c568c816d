#include "core/leaving.h"

#include "forms/box_open.h"
#include "text/failure.h"

namespace core {

Leaving::Leaving(Uses uses) : uses_(uses)
{
    auto& frmMain = uses_.forms.frmMain;
    frmMain.spotmin.clicked.attach([this] { spotmin(); });
    frmMain.spotx.clicked.attach([this] { spotx(); });
    frmMain.spotmenu.clicked.attach([this] { uses_.forms.menuform.toolsmenu.pop_up(); });
    frmMain.options.clicked.attach([this] { uses_.forms.menuform.toolsmenu.pop_up(); });
    frmMain.autorespond.clicked.attach([this] { uses_.forms.menuform.autores.pop_up(); });
    frmMain.Command4.attach([this] { Command4(); });
}

void Leaving::hide_main()
{
    auto& frmMain = uses_.forms.frmMain;
    frmMain.window.state = controls::Window::State::minimised;
    frmMain.window.hide();
}

void Leaving::spotmin()
{
    auto& history = uses_.forms.historyfrm;
    uses_.forms.frmMain.minimized = "yes";
    history.showmain.caption = "Show Main";
    hide_main();
    history.wasopen.set(0);
    if (history.minmain.on() && history.window.visible()) {
        history.window.hide();
        history.wasopen.set(1);
    }
}

void Leaving::Command4()
{
    uses_.forms.frmMain.minimized = "yes";
    hide_main();
}

void Leaving::spotx()
{
    auto& frmMain = uses_.forms.frmMain;
    platform::Answer answer{};
    {
        forms::BoxOpen const open(frmMain);
        answer = uses_.boxes.show(
            {.text = "Do you want Vexlo IM to continue running in the background?\r\n"
                     "\r\n"
                     "  Yes - Minimize to Tray (run in background)\r\n"
                     "   No - Terminate",
             .title = "Exit Vexlo Instant Messaging",
             .buttons = platform::Buttons::yes_no_cancel,
             .icon = platform::Icon::question});
    }
    if (answer == platform::Answer::yes) {
        frmMain.minimized = "yes";
        hide_main();
    } else if (answer == platform::Answer::no) {
        end();
    }
}

void Leaving::end()
{
    try {
        sign_off_and_save();
    } catch (text::Failure const& failure) {
        // A failure on the way out never cancels the exit.
        auto& frmMain = uses_.forms.frmMain;
        frmMain.window.show();
        if (network::Trouble::is_taken_port(failure, frmMain.bindingsocket)) {
            forms::BoxOpen const open(frmMain);
            uses_.trouble.show_taken_port(frmMain.bindingsocket);
        }
    }
    uses_.trouble.end_program();
}

void Leaving::sign_off_and_save()
{
    uses_.forms.frmMain.saveusers.run();
    uses_.log.close();
    uses_.presence.sign_off();
    uses_.transport.close_both();
    uses_.forms.historyfrm.savebtn.run();
}

} // namespace core
