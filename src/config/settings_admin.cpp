#include "config/settings_window.h"
#include "text/failure.h"
#include "text/numbers.h"

namespace config {

void SettingsWindow::attach_admin()
{
    form_.autoclean.clicked.attach([this] { auto_clean(); });
    form_.Command4.clicked.attach([this] { reset_all(); });
    form_.btnTransfer.clicked.attach(
        [this] { text::attempt([this] { uses_.outside.start(transfer_program()); }); });
    form_.btnAutoForward.clicked.attach([this] { choose_forward_target(); });
    auto& dialog = uses_.forms.fwdtofrm;
    dialog.savebtn.clicked.attach([this] { save_forward_target(); });
    dialog.cancelbtn.clicked.attach([this] {
        form_.fwdchange.set(0);
        uses_.forms.fwdtofrm.window.hide();
    });
}

void SettingsWindow::change_chat_port(controls::Label& port, controls::Label const& other)
{
    constexpr std::string_view title = "Change your Ports";
    auto& socket = uses_.transport.SckUDP;
    // The socket is closed around each box: what arrives meanwhile is lost, not queued.
    socket.Close();
    auto const answer =
        uses_.boxes.ask({.prompt = "Please enter the new Chat Listening Port #:\r\n",
                         .title = std::string(title),
                         .default_text = port.caption()});
    socket.Bind(socket.LocalPort);
    if (answer.empty()) {
        return;
    }
    if (answer == form_.portlisten.caption() || answer == form_.portsend.caption() ||
        answer == other.caption()) {
        show_without_arrivals({.text = "Ports cannot be the same.", .title = std::string(title)});
        return;
    }
    // Compared as text, stored as a number: 04111 passes and becomes 4111.
    port.set_caption(text::leading_decimal(answer));
}

platform::Answer SettingsWindow::show_without_arrivals(platform::MessageBox const& box)
{
    auto& socket = uses_.transport.SckUDP;
    socket.Close();
    auto const answer = uses_.boxes.show(box);
    socket.Bind(socket.LocalPort);
    return answer;
}

void SettingsWindow::auto_clean()
{
    uses_.users_file.write_own_row();
    form_.acchanged.set(1);
    uses_.forms.frmMain.getusers.run();
}

void SettingsWindow::reset_all()
{
    auto const answer = show_without_arrivals(
        {.text = "Are you Sure?", .title = "Reset All", .buttons = platform::Buttons::yes_no});
    if (answer == platform::Answer::no) {
        return;
    }
    for (char const* const file : {"/settings.txt", "/users.txt", "/buttons.txt", "/groups.txt"}) {
        uses_.files.remove(folder_ + file);
    }
    uses_.transport.SckUDP.Close();
    uses_.boxes.show({.text = "Please Restart Vexlo Instant Messaging", .title = "Reset All"});
    uses_.transport.close_both();
    uses_.trouble.end_program();
}

void SettingsWindow::choose_forward_target()
{
    auto& dialog = uses_.forms.fwdtofrm;
    auto const& letters = uses_.forms.frmMain.letters;
    dialog.fwdto.clear();
    dialog.fwdto.add("None");
    for (std::string const& name : uses_.forms.frmMain.allusers.rows()) {
        if (letters.lower(name) != letters.lower(form_.friendlyname.caption())) {
            dialog.fwdto.add(name);
        }
    }
    dialog.window.show_modal();
}

void SettingsWindow::save_forward_target()
{
    auto& dialog = uses_.forms.fwdtofrm;
    auto const chosen = dialog.fwdto.text();
    bool const none = chosen == "None";
    // With no row selected the target is nobody's name: "Forward to: " alone.
    form_.ar[3].set_text(none ? "" : "Forward to: " + chosen);
    form_.ar3temp.set_caption(none ? "" : chosen);
    form_.fwdchange.set(1);
    dialog.window.hide();
}

} // namespace config
