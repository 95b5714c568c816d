#pragma once

#include "sim/peer.h"
#include "tests/soak/desk_state.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace soak {

class Company;

/// One of the company: the program, the person in front of it, and what both are in for today.
class Colleague {
public:
    Colleague(Company& at, int with_number);
    Colleague(Colleague const&) = delete;
    Colleague& operator=(Colleague const&) = delete;

    // The program's life.
    void come();
    void go_home();
    void crash();
    [[nodiscard]] bool running() const { return peer.running(); }

    /// Brings the main window up. False where a person cannot do anything now.
    [[nodiscard]] bool turns_to_the_program();
    /// What the person does while the settings window is open; it must close it.
    template <typename Doing>
    void in_settings(Doing doing)
    {
        auto& window = peer.settings().window;
        window.wait_until_hidden.attach([&] { doing(peer.settings()); });
        peer.person.choose(peer.forms().menuform.toolsmenu, 0);
        if (running()) {
            window.wait_until_hidden.attach({});
        }
    }
    void note(std::string_view what);
    /// A message has gone out; on a good day it is found in the history of whoever was to have it.
    void has_written(std::vector<std::string> const& names, std::string_view text);

    [[nodiscard]] forms::FrmMain& main() { return peer.frmMain(); }
    [[nodiscard]] std::string const& name() { return main().friendlyname; }
    /// As it stands in a list.
    [[nodiscard]] std::string shown_name();
    /// The names in the list of recipients but the own one.
    [[nodiscard]] std::vector<std::string> others();
    [[nodiscard]] std::vector<forms::Popup*> popups();
    /// Selects these names.
    void pick(std::vector<std::string> const& names);
    /// Whether the program hears what is said, and handles it.
    [[nodiscard]] bool hears();

    /// A full disk, or one that takes nothing; the backup of the morning mends it.
    void spoil_disk(bool full);
    void mend_disk();

    void close_the_books();

    Company& company;
    int const number;
    std::string const identity;
    sim::Peer& peer;
    std::set<std::string> names; ///< that the person has ever had

    // What is wrong at the moment, and not the program's fault.
    bool stuck = false;           ///< a row without "=" stands at the head of the queue
    bool cleared_history = false; ///< which leaves the queue closed until the next box
    bool elsewhere = false;       ///< listens on a port of its own
    bool bad_disk = false;
    bool files_differ = false; ///< from what the program holds, since the disk was bad
    bool at_work = false;
    std::size_t boxes_seen = 0;

private:
    void prepare();
    void keep_backup();
    void require_same_as(DeskState left);

    Texts saved_history_;
    std::map<std::string, std::string> backup_;
};

} // namespace soak
