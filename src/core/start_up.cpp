#include "core/start_up.h"

#include "core/version.h"
#include "forms/box_open.h"
#include "messaging/outgoing.h"
#include "text/dates.h"
#include "text/fields.h"

namespace core {

namespace {

void centre(controls::Window& window, platform::Screen const& screen)
{
    window.place((screen.width() - window.width) / 2, (screen.height() - window.height) / 2);
}

} // namespace

void StartUp::run()
{
    refuse_second_copy();
    auto& process = uses_.platform.process;
    process.store_setting("NORVAN", "Path", uses_.paths.program);
    auto& menuform = uses_.forms.menuform;
    menuform.window.hide();
    progress(0);
    centre(menuform.window, uses_.platform.screen);
    menuform.trayadd.run();
    progress(10);
    if (silent()) {
        start_hidden();
    } else {
        start_shown();
    }
    progress(15); // The mark by which later flows know that start-up is over.
}

void StartUp::refuse_second_copy()
{
    if (uses_.platform.process.other_copy_runs()) {
        uses_.platform.boxes.show({.text = "Vexlo Instant Messaging v" + version_text() +
                                           std::string(text::line_end) +
                                           "     is already running."});
        uses_.platform.process.end(0);
    }
}

bool StartUp::silent() const
{
    // The whole command line is the switch: "/m" among other arguments is none.
    return uses_.forms.frmMain.letters.lower(uses_.platform.process.command_line()) == "/m";
}

void StartUp::start_hidden()
{
    auto& frmMain = uses_.forms.frmMain;
    load_main();
    frmMain.minimized = "yes";
    frmMain.window.state = controls::Window::State::minimised;
    frmMain.window.hide();
}

void StartUp::start_shown()
{
    uses_.forms.loading.window.show();
    uses_.forms.loading.window.repaint.run();
    load_main();
    // With "Minimize on Startup" this shows it minimised; the watch's first tick hides it.
    uses_.forms.frmMain.window.show();
    uses_.forms.menuform.window.hide();
}

void StartUp::load_main()
{
    prepare_main();
    auto& files = uses_.platform.files;
    uses_.log.make_folder();
    if (!files.exists(uses_.paths.settings)) {
        first_run();
    }
    load_files();
    go_online();
    settle();
}

void StartUp::prepare_main()
{
    auto& forms = uses_.forms;
    auto& frmMain = forms.frmMain;
    centre(frmMain.window, uses_.platform.screen);
    frmMain.messlen = messaging::draft_limit;
    frmMain.updateurl = uses_.update_address;
    frmMain.title.set_caption("Vexlo Instant Messaging ");
    progress(20);
    uses_.pool.start();
    frmMain.Label5.visible = false;
    frmMain.Frame2.visible = false;
    forms.settings.loadbuttons.run();
    frmMain.SSTab1.choose(0);
    forms.settings.SSTab1.choose(0);
}

void StartUp::first_run()
{
    progress(30);
    uses_.naming.first_name();
    progress(40);
    centre(uses_.forms.frmMain.window, uses_.platform.screen);
    uses_.settings.write_default();
}

void StartUp::load_files()
{
    progress(50);
    uses_.log.recover();
    progress(55);
    uses_.forms.frmMain.loadusers.run();
    uses_.forms.frmMain.adoptoldshortcut.run();
    progress(60);
    uses_.forms.groups.loadgroups.run();
}

void StartUp::go_online()
{
    auto& frmMain = uses_.forms.frmMain;
    progress(70);
    step([&] {
        frmMain.bindingsocket = network::Transport::listening_name;
        uses_.transport.set_up_listening();
    });
    progress(80);
    step([&] {
        frmMain.bindingsocket = network::Transport::sending_name;
        uses_.transport.set_up_sending();
    });
    progress(90);
    progress(95);
    progress(100);
    uses_.forms.log.lstMessages.add(text::log_stamp(uses_.platform.clock.now()) +
                                    "Vexlo IM.\t\r\n---");
    step([&] { frmMain.cleanlog.run(); });
    uses_.forms.loading.window.hide();
    uses_.forms.loading.window.show();
    discover();
}

void StartUp::discover()
{
    auto& frmMain = uses_.forms.frmMain;
    auto const round = [&] {
        forms::BoxOpen const open(frmMain);
        return step([&] { frmMain.getusers.run(); });
    };
    // Nothing can have entered the list yet, so every start announces itself twice; a lost network
    // is told once.
    if (round() && frmMain.allusers.empty()) {
        round();
    }
}

void StartUp::settle()
{
    auto& forms = uses_.forms;
    auto& frmMain = forms.frmMain;
    step([&] { forms.historyfrm.loadbtn.run(); });
    place_history();
    frmMain.usercount = "0";
    frmMain.Timer1.enable();
    if (!frmMain.cue.empty()) {
        frmMain.Timer3.enable();
    }
    forms.loading.window.hide();
    forms.loading.ProgressBar1.set(0);
    if (forms.settings.startminimized.on()) {
        uses_.leaving.spotmin();
    } else {
        frmMain.window.show();
    }
}

void StartUp::place_history()
{
    auto& main = uses_.forms.frmMain.window;
    auto& history = uses_.forms.historyfrm.window;
    float const screen = uses_.platform.screen.height();
    if (main.top + main.height > screen) {
        main.top = screen - main.height - history.height;
    }
    history.place(main.left + main.width - history.width, main.top + main.height);
}

void StartUp::failed(text::Failure const& failure)
{
    uses_.forms.frmMain.window.show();
    uses_.forms.loading.window.hide();
    if (network::Trouble::is_taken_port(failure, uses_.forms.frmMain.bindingsocket)) {
        port_is_taken();
    } else if (failure.text == text::no_route_to_host) {
        network_is_down(failure);
    }
}

void StartUp::port_is_taken()
{
    auto& frmMain = uses_.forms.frmMain;
    {
        forms::BoxOpen const open(frmMain);
        frmMain.Timer1.disable();
        if (!silent()) {
            uses_.trouble.show_taken_port(frmMain.bindingsocket);
        }
        frmMain.Timer1.enable();
    }
    uses_.trouble.end_program();
}

void StartUp::network_is_down(text::Failure const& failure)
{
    auto& frmMain = uses_.forms.frmMain;
    frmMain.statustext.set_caption(network::Trouble::network_error);
    frmMain.Timer1.enable();
    uses_.trouble.log_failure(failure);
    frmMain.cleanlog.run();
    {
        forms::BoxOpen const open(frmMain);
        frmMain.Timer1.disable();
        if (!silent()) {
            uses_.trouble.show_no_connection();
        }
    }
    frmMain.Timer1.enable();
}

void StartUp::progress(int value)
{
    uses_.forms.loading.ProgressBar1.set(value);
}

} // namespace core
