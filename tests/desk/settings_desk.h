#pragma once

#include "tests/desk/desk_flows.h"

#include <string>
#include <string_view>
#include <utility>

namespace desk {

/// Alice in front of her settings window.
class SettingsDesk : public OpenDesk {
protected:
    explicit SettingsDesk(sim::Setup setup = {}) : OpenDesk(std::move(setup)) { come_up(); }

    void come_up() { alice.person.choose(alice.forms().menuform.toolsmenu, 0); }
    void press(controls::Button const& button) { alice.person.click(settings.window, button); }
    void tick(controls::CheckBox& box) { alice.person.tick(settings.window, box); }
    void fill(controls::TextBox& box, std::string_view text)
    {
        alice.person.fill(settings.window, box, text);
    }
    void save() { press(settings.savebtn); }
    void cancel() { press(settings.cancelbtn); }
    /// Presses Save, opens the window again, and forgets what was sent.
    void save_and_come_up()
    {
        save();
        office.settle();
        come_up();
        office.segment.forget();
    }
    /// Alice ends her program and starts it again; the window is opened.
    void come_back()
    {
        settings.window.hide();
        restart_alice();
        come_up();
    }
    /// From now on every step is noted, the end of the window too.
    void watch_order()
    {
        settings.window.hidden.attach([this] { alice.journal.note("hide"); });
        alice.journal.switch_on();
    }
    /// The value of a key in `settings.txt`; "none" where there is no such line.
    [[nodiscard]] std::string in_file(std::string_view key) const
    {
        auto const file = alice.files.content("settings.txt");
        auto const line = "[" + std::string(key) + std::string(20 - key.size(), ' ') + "]=";
        auto const begin = file.find(line);
        return begin == std::string::npos
                   ? "none"
                   : file.substr(begin + line.size(),
                                 file.find("\r\n", begin) - begin - line.size());
    }

    forms::Settings& settings = alice.settings();
    forms::FrmMain& frmMain = alice.frmMain();
};

} // namespace desk
