#include "config/settings_window.h"

#include "text/dates.h"
#include "text/failure.h"
#include "text/fields.h"

#include <utility>

namespace config {

SettingsWindow::SettingsWindow(Uses uses, std::string program_folder, std::string version)
    : uses_(uses), form_(uses.forms.settings), folder_(std::move(program_folder)),
      version_(std::move(version))
{
    attach_marks();
    attach_buttons();
    attach_admin();
}

void SettingsWindow::attach_marks()
{
    auto const mark = [this] { form_.acchanged.set(1); };
    for (auto* const box :
         {&form_.autocheckusers, &form_.autoreply, &form_.autoresmaster, &form_.autostartup,
          &form_.entersend, &form_.hidetip, &form_.myown, &form_.ontop, &form_.replytoall,
          &form_.resetports, &form_.showme, &form_.startclearusers, &form_.startminimized,
          &form_.userlistfont, &form_.watchdog}) {
        box->clicked.attach(mark);
    }
    for (auto& response : form_.ar) {
        response.changed.attach(mark);
    }
    form_.msgfontsize.changed.attach(mark);
    form_.soundon.clicked.attach([this] {
        uses_.forms.frmMain.Check2.set(form_.soundon.value());
        form_.acchanged.set(1);
    });
    form_.ar3temp.changed.attach(
        [this] { form_.autoreply.visible = !form_.ar3temp.caption().empty(); });
}

void SettingsWindow::attach_buttons()
{
    auto& frmMain = uses_.forms.frmMain;
    form_.getstats.attach([this] { getstats(); });
    form_.window.came_up.attach([this] { came_up(); });
    form_.window.activated.attach([this] {
        getstats();
        show_transfer();
    });
    form_.Command1.clicked.attach([this] { change_name(); });
    form_.Command2.clicked.attach([this, &frmMain] {
        frmMain.changeports1.run();
        getstats();
    });
    form_.Command3.clicked.attach([this, &frmMain] {
        frmMain.changeports2.run();
        getstats();
    });
    form_.btnChatPort1.clicked.attach(
        [this] { change_chat_port(form_.chatport1, form_.chatport2); });
    form_.btnChatPort2.clicked.attach(
        [this] { change_chat_port(form_.chatport2, form_.chatport1); });
    form_.btnSoundFile.clicked.attach([this] { select_sound(); });
    form_.Command6.clicked.attach([&frmMain] { frmMain.soundtest.run(); });
    form_.savebtn.clicked.attach([this] { save(); });
    form_.cancelbtn.clicked.attach([this] { cancel(); });
    form_.Command7.attach([&frmMain] {
        frmMain.loadusers.run();
        frmMain.getusers.run();
    });
}

void SettingsWindow::came_up()
{
    getstats();
    form_.acchanged.set(0);
    show_transfer();
}

std::string SettingsWindow::transfer_program() const
{
    return folder_ + "/sendsettings.exe";
}

void SettingsWindow::show_transfer()
{
    bool const installed = uses_.files.is_file(transfer_program());
    form_.btnTransfer.enabled = installed;
    form_.transfername.set_caption(
        installed ? "Settings and Buttons Transfer Utility"
                  : "Settings and Buttons Transfer Utility  (Utility not Installed)");
    form_.transfertext.visible = installed;
}

void SettingsWindow::getstats()
{
    auto const& transport = uses_.transport;
    auto const& environment = uses_.environment;
    form_.portlisten.set_caption(std::to_string(transport.SckUDP.LocalPort));
    form_.portsend.set_caption(std::to_string(transport.SckUDP.RemotePort));
    form_.Frame1.set_caption("Vexlo Instant Messaging ");
    std::string info;
    auto const line = [&info](std::string_view words, std::string_view value) {
        info.append(words).append(value).append(text::line_end);
    };
    line("Version: ", version_);
    line("Local IP Address: ", transport.SckUDP1.LocalIP());
    line("Local Host Name: ", transport.SckUDP1.LocalHostName());
    line("Local User Name: ", environment.value("username"));
    form_.localinfo.set_caption(info + state_lines());
}

std::string SettingsWindow::state_lines() const
{
    if (uses_.trouble.is_down()) {
        return "Network Error:\r\nNo network connection";
    }
    auto const& transport = uses_.transport;
    return "Winsock 1 State: " + std::string(network::state_name(transport.SckUDP.State())) +
           "\r\nWinsock 2 State: " +
           std::string(network::sender_state_name(transport.SckUDP1.State()));
}

void SettingsWindow::change_name()
{
    uses_.forms.frmMain.Command1.run();
    form_.friendlyname.set_caption(uses_.forms.frmMain.friendlyname);
}

void SettingsWindow::save()
{
    auto& frmMain = uses_.forms.frmMain;
    uses_.forms.log.lstMessages.add(text::log_stamp(uses_.clock.now()) +
                                    " Settings changed and saved.");
    frmMain.cleanlog.run();
    frmMain.saveallsettings.run();
    if (form_.fwdchange.on()) {
        form_.acchanged.set(1);
    }
    form_.fwdchange.set(0);
    if (form_.acchanged.on()) {
        // What the file lost is lost here at once: a comma cuts a response in the window too.
        frmMain.allusers.clear();
        frmMain.loadusers.run();
        frmMain.getusers.run();
    }
    form_.acchanged.set(0);
    frmMain.Label5.set_caption("Auto Respond On: " + form_.autorespond.text());
    form_.SAVEBUTTONS.run();
    form_.loadbuttons.run();
    form_.window.hide();
}

void SettingsWindow::cancel()
{
    form_.fwdchange.set(0);
    form_.acchanged.set(0);
    uses_.forms.frmMain.loadusers.run();
    form_.loadbuttons.run();
    form_.window.hide();
}

void SettingsWindow::select_sound()
{
    auto const chosen = uses_.boxes.choose_file({.title = "Select Sound file",
                                                 .pattern = "*.wav",
                                                 .pattern_name = "Wave Files (*.wav)",
                                                 .present = form_.wavefile});
    if (uses_.forms.frmMain.letters.lower(chosen).ends_with(".wav")) {
        form_.acchanged.set(1);
        form_.wavefile = chosen; // Any other choice is dropped without a word.
    }
}

} // namespace config
