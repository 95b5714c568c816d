#pragma once

#include "forms/forms.h"
#include "network/transport.h"
#include "network/trouble.h"
#include "network/users_file.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/outside.h"

#include <string>
#include <string_view>

namespace config {

/// The window of all options. Its controls are the working copy; Save writes them, Cancel reads
/// them back.
class SettingsWindow {
public:
    struct Uses {
        forms::Forms& forms;
        network::Transport& transport;
        network::Trouble& trouble;
        network::UsersFile& users_file;
        platform::Boxes& boxes;
        platform::Clock const& clock;
        platform::Environment const& environment;
        platform::Files& files;
        platform::Outside& outside;
    };

    /// `program_folder` is the folder of the executable, `version` the program's three numbers with
    /// points.
    SettingsWindow(Uses uses, std::string program_folder, std::string version);
    SettingsWindow(SettingsWindow const&) = delete;
    SettingsWindow& operator=(SettingsWindow const&) = delete;

    /// Refreshes the status panel and the two ports.
    void getstats();
    /// Writes everything, reloads if anything was touched, and hides. Raises a Failure.
    void save();
    /// Reads everything back and hides. Raises a Failure.
    void cancel();

private:
    void attach_marks();
    void attach_buttons();
    void attach_admin();
    void came_up();
    void show_transfer();
    void change_name();
    void change_chat_port(controls::Label& port, controls::Label const& other);
    platform::Answer show_without_arrivals(platform::MessageBox const& box);
    void select_sound();
    void auto_clean();
    void reset_all();
    void choose_forward_target();
    void save_forward_target();
    [[nodiscard]] std::string state_lines() const;
    [[nodiscard]] std::string transfer_program() const;

    Uses uses_;
    forms::Settings& form_;
    std::string folder_;
    std::string version_;
};

} // namespace config
