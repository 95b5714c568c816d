#include "desktop/tray.h"

#include "forms/box_open.h"
#include "text/numbers.h"

#include <string>

namespace desktop {

namespace {

using Image = platform::TrayIcon::Image;

constexpr std::string_view tip = "Vexlo IM";
constexpr int start_up_is_over = 15;
constexpr int all_free = 10;

} // namespace

Tray::Tray(forms::Forms& forms, platform::TrayIcon& icon, platform::Boxes& boxes,
           platform::Process const& process)
    : forms_(forms), icon_(icon), boxes_(boxes), process_(process)
{
    auto& menuform = forms_.menuform;
    menuform.trayadd.attach([this] { trayadd(); });
    menuform.Command1.attach([this] { ShellTrayAdd1(); });
    menuform.Command2.attach([this] { ShellTrayAdd2(); });
    menuform.Command3.attach([this] { ShellTrayAdd3(); });
    menuform.unloadmecommand.attach([this] { unload(); });
    menuform.closepopups.chosen = [this](std::size_t entry) { choose(entry); };
    icon_.left_pressed = [this] { left_pressed(); };
    icon_.double_clicked = [this] { restore_main(); };
    icon_.right_released = [this] { forms_.menuform.closepopups.pop_up(); };
    icon_.panel_restarted = [this] { panel_restarted(); };
}

void Tray::trayadd()
{
    icon_.add(Image::normal, "Vexlo Instant Messaging");
}

void Tray::ShellTrayAdd1()
{
    icon_.set_image(Image::waiting);
    icon_.set_tip(tip);
}

void Tray::ShellTrayAdd2()
{
    icon_.set_image(Image::normal);
    icon_.set_tip(tip);
}

void Tray::ShellTrayAdd3()
{
    icon_.set_image(Image::away);
    icon_.set_tip("Vexlo IM AWAY");
}

void Tray::unload()
{
    icon_.remove();
}

void Tray::restore_main()
{
    auto& frmMain = forms_.frmMain;
    frmMain.window.state = controls::Window::State::normal;
    frmMain.window.show();
    frmMain.minimized = "no";
}

void Tray::left_pressed()
{
    auto& history = forms_.historyfrm;
    restore_main();
    history.showmain.caption = "Hide Main";
    if (forms_.loading.ProgressBar1.value() != start_up_is_over) {
        tell_progress();
    }
    if (history.wasopen.on()) {
        history.window.show();
        history.wasopen.set(0);
    }
}

void Tray::tell_progress()
{
    {
        forms::BoxOpen const open(forms_.frmMain);
        boxes_.show({.text = std::to_string(forms_.loading.ProgressBar1.value())});
    }
    if (forms_.frmMain.letters.lower(process_.command_line()) == "/m") {
        forms_.historyfrm.wasopen.set(0);
        forms_.historyfrm.closebtn.click();
    }
}

void Tray::panel_restarted()
{
    trayadd();
    if (forms_.frmMain.away.on()) {
        ShellTrayAdd3();
    }
    if (text::leading_whole_number(forms_.frmMain.pucount.caption()) < all_free) {
        ShellTrayAdd1(); // Second, so waiting messages win over the away image.
    }
}

void Tray::choose(std::size_t entry)
{
    switch (entry) {
    case 0:
        forms_.frmMain.dissmissall.click();
        break;
    case 1:
        forms_.frmMain.recall.click();
        break;
    default:
        toggle_away();
        break;
    }
}

void Tray::toggle_away()
{
    auto& frmMain = forms_.frmMain;
    if (!frmMain.away.on()) {
        frmMain.away.set(1);
        frmMain.window.state = controls::Window::State::minimised;
        frmMain.window.hide();
    } else {
        frmMain.away.set(0);
        restore_main();
    }
    frmMain.away.clicked.run();
}

} // namespace desktop
