#include "desktop/tools_menu.h"

#include "forms/box_open.h"
#include "platform/saved_texts.h"
#include "text/failure.h"

#include <utility>

namespace desktop {

ToolsMenu::ToolsMenu(Uses uses, std::string program_folder)
    : uses_(uses), folder_(std::move(program_folder))
{
    uses_.forms.menuform.toolsmenu.chosen = [this](std::size_t entry) { choose(entry); };
    attach_links();
}

void ToolsMenu::attach_links()
{
    auto& frmMain = uses_.forms.frmMain;
    frmMain.helpbtn.clicked.attach([this] { uses_.outside.open_web(uses_.hosts.web + "/help"); });
    frmMain.Label3.clicked.attach(
        [this] { uses_.outside.open_web(uses_.hosts.company + "/software.shtml"); });
    frmMain.Label4.clicked.attach([this] { uses_.outside.open_web(uses_.hosts.web + "/"); });
    // A missing chat program is nobody's failure here: it reaches the top.
    frmMain.chatbtn.clicked.attach([this] { uses_.outside.start(folder_ + "/vexlochat.exe"); });
    uses_.forms.historyfrm.searchlogs.clicked.attach([this] {
        text::attempt([this] { uses_.outside.start(folder_ + "/vexlologviewer.exe"); });
    });
}

void ToolsMenu::choose(std::size_t entry)
{
    auto& forms = uses_.forms;
    switch (entry) {
    case 0:
        change_settings();
        break;
    case 2:
        find_other_users();
        break;
    case 4:
        configure_groups();
        break;
    case 6:
        check_for_updates();
        break;
    case 8:
        forms.log.window.show();
        break;
    case 9:
        open_saved_messages();
        break;
    case 11:
        uses_.outside.open_help();
        break;
    case 12:
        forms.frmMain.helpbtn.click();
        break;
    default:
        break;
    }
}

void ToolsMenu::change_settings()
{
    auto& frmMain = uses_.forms.frmMain;
    frmMain.boxopen.set(1);
    frmMain.Timer1.disable();
    uses_.forms.settings.Check1.set(0);
    uses_.forms.settings.window.show_modal();
    frmMain.boxopen.set(0);
    frmMain.Timer1.enable(); // Before the queue wakes.
    if (!frmMain.cue.empty()) {
        frmMain.Timer3.enable();
    }
}

void ToolsMenu::find_other_users()
{
    auto& frmMain = uses_.forms.frmMain;
    frmMain.allusers.clear();
    frmMain.loadusers.run();
    frmMain.getusers.run();
}

void ToolsMenu::configure_groups()
{
    forms::BoxOpen const open(uses_.forms.frmMain);
    uses_.forms.groups.window.show_modal();
}

void ToolsMenu::check_for_updates()
{
    forms::BoxOpen const open(uses_.forms.frmMain);
    uses_.forms.frmMain.updates.run();
}

void ToolsMenu::open_saved_messages()
{
    text::attempt([this] {
        uses_.outside.open_folder(platform::savedmessagesfolder(uses_.environment, uses_.files));
    });
}

} // namespace desktop
