#pragma once

#include "tests/desk/desk_flows.h"

#include <string>
#include <string_view>
#include <vector>

/// What the stories of groups have in common.
namespace desk {

/// A row of a list of groups: the name, thirty blanks, the slot's digit.
inline std::string group_row(std::string_view name, int slot)
{
    return std::string(name) + "                              " + std::to_string(slot);
}

/// A saved `groups.txt`: the names of the first slots, and lines behind all ten.
[[nodiscard]] std::string groups_file(std::vector<std::string> names,
                                      std::vector<std::string> const& lines = {});

/// Alice's groups: their file, their window, and what sending reads. Nobody has started.
class Groups : public Desk {
protected:
    /// Lays this file on Alice's disk and starts all three.
    void open_with(std::string_view file);

    [[nodiscard]] forms::Groups& form() { return alice.forms().groups; }
    [[nodiscard]] flows::Lines groups() { return form().List1.rows(); }
    [[nodiscard]] flows::Lines members(std::size_t slot) { return form().group.at(slot).rows(); }
    /// The groups in the list of the main window.
    [[nodiscard]] flows::Lines on_show() { return alice.frmMain().List1.rows(); }
    [[nodiscard]] std::string file() { return alice.files.content("groups.txt"); }

    // What Alice does in the window of the groups.
    void open_window() { alice.person.click(alice.frmMain().configgroups); }
    void press(controls::Button const& button) { alice.person.click(form().window, button); }
    void save() { press(form().closebtn); }
    void cancel() { press(form().Command6); }
    void choose(std::string_view name) { click_in(form().List1, name); }
    void add(std::string_view user);
    void take_out(std::string_view member);
    void make(std::string_view name);
    void rename(std::string_view name);
    /// A click on the first row of a list that begins with this.
    void click_in(controls::ListBox& list, std::string_view row);
    [[nodiscard]] controls::ListBox& current_list();
};

/// The same with three groups, two of them with members: Bob and Carl are Alice's friends.
class ThreeGroups : public Groups {
protected:
    ThreeGroups();
};

} // namespace desk
