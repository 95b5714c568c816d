#pragma once

#include "desktop/web_hosts.h"
#include "forms/forms.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/outside.h"

#include <cstddef>
#include <string>

namespace desktop {

/// The tools menu of the main window, and its links and chat button.
class ToolsMenu {
public:
    struct Uses {
        forms::Forms& forms;
        platform::Environment const& environment;
        platform::Files& files;
        platform::Outside& outside;
        WebHosts const& hosts;
    };

    /// `program_folder` is the folder of the executable.
    ToolsMenu(Uses uses, std::string program_folder);
    ToolsMenu(ToolsMenu const&) = delete;
    ToolsMenu& operator=(ToolsMenu const&) = delete;

private:
    void attach_links();
    void choose(std::size_t entry);
    void change_settings();
    void find_other_users();
    void configure_groups();
    void check_for_updates();
    void open_saved_messages();

    Uses uses_;
    std::string folder_;
};

} // namespace desktop
