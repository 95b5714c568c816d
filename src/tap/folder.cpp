#include "tap/folder.h"

#include "config/groups_file.h"
#include "core/settings_store.h"
#include "network/users_file.h"

#include <utility>

namespace tap {

Folder::Folder(std::string path, platform::Files const& files,
               platform::Environment const& environment, text::CharacterSet const& letters)
    : forms(letters), paths_(std::move(path)), files_(files), environment_(environment)
{
}

void Folder::read()
{
    auto& frmMain = forms.frmMain;
    if (files_.exists(paths_.settings)) {
        core::SettingsStore(forms, files_, paths_).load();
    } else {
        set_name(environment_.value("username"));
    }
    // Clearing the cache at the start is for the messenger alone.
    frmMain.cachecleared.set(1);
    network::UsersFile(frmMain, forms.settings, files_, environment_, paths_.users).load();
    if (files_.exists(paths_.groups)) {
        config::GroupsFile(forms, files_, paths_.groups).load();
    }
}

void Folder::set_name(std::string_view name)
{
    forms.frmMain.friendlyname = forms.frmMain.letters.upper(name);
}

void Folder::set_port(int listening)
{
    forms.frmMain.udplistenport = listening;
    forms.frmMain.udpsendremote = listening;
}

} // namespace tap
