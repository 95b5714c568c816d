#pragma once

#include "config/groups_editor.h"
#include "config/quick_buttons.h"
#include "config/settings_window.h"
#include "core/leaving.h"
#include "core/naming.h"
#include "core/paths.h"
#include "core/settings_store.h"
#include "core/start_up.h"
#include "desktop/companions.h"
#include "desktop/message_sound.h"
#include "desktop/session_start.h"
#include "desktop/tools_menu.h"
#include "desktop/tray.h"
#include "desktop/updates.h"
#include "desktop/web_hosts.h"
#include "forms/forms.h"
#include "messaging/away.h"
#include "messaging/composer.h"
#include "messaging/inbound.h"
#include "messaging/receive_queue.h"
#include "messaging/replies.h"
#include "messaging/sent_records.h"
#include "messaging/shortcuts.h"
#include "messaging/stand_in.h"
#include "network/ports.h"
#include "network/presence.h"
#include "network/transport.h"
#include "network/trouble.h"
#include "network/users_file.h"
#include "network/watch.h"
#include "platform/platform.h"
#include "popups/conversation.h"
#include "popups/pool.h"
#include "records/history.h"
#include "records/log_window.h"
#include "records/rolling_log.h"

#include <memory>
#include <vector>

namespace core {

/// One whole program, without a screen: the forms, the flows that work on them, and who attached
/// what.
///
/// Whoever runs it gives it a desktop, shows `forms`, runs the timers of `forms.frmMain`, and hands
/// in what a person does. Any routine may raise a Failure that nobody handles: then the desktop
/// shows its error report and the process ends.
class Program {
public:
    /// `platform` and `letters` must outlive the program.
    Program(platform::Platform platform, text::CharacterSet const& letters);
    Program(Program const&) = delete;
    Program& operator=(Program const&) = delete;

    /// The whole start-up. Raises a Failure.
    void start() { start_up_.run(); }

    forms::Forms forms;

private:
    void attach_commands();
    void attach_popups();
    void loadusers();
    void saveusers();

    platform::Platform platform_;
    Paths paths_;

    network::Transport transport_;
    network::Trouble trouble_;
    network::Ports ports_;
    network::Presence presence_;
    network::UsersFile users_file_;
    network::Watch watch_;

    popups::Pool pool_;
    std::vector<std::unique_ptr<popups::Conversation>> conversations_;
    records::RollingLog log_;
    records::LogWindow log_window_;
    records::History history_;

    messaging::Away away_;
    messaging::SentRecords sent_records_;
    messaging::StandIn stand_in_;
    messaging::Inbound inbound_;
    messaging::ReceiveQueue queue_;
    messaging::Composer composer_;
    messaging::Replies replies_;
    messaging::Shortcuts shortcuts_;

    config::QuickButtons quick_buttons_;
    config::GroupsEditor groups_;
    config::SettingsWindow settings_window_;

    desktop::WebHosts hosts_;
    desktop::MessageSound message_sound_;
    desktop::Tray tray_;
    desktop::ToolsMenu tools_menu_;
    desktop::Updates updates_;
    desktop::SessionStart session_start_;
    desktop::Companions companions_;

    SettingsStore settings_;
    Naming naming_;
    Leaving leaving_;
    StartUp start_up_;
};

} // namespace core
