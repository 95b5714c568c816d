#pragma once

#include "forms/forms.h"
#include "platform/boxes.h"
#include "platform/files.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace config {

/// The groups: their file, and the window in which they are made. Sending reads the same lists, so
/// an edit counts at once.
class GroupsEditor {
public:
    /// `path` is that of `groups.txt`.
    GroupsEditor(forms::Forms& forms, platform::Boxes& boxes, platform::Files& files,
                 std::string path);
    GroupsEditor(GroupsEditor const&) = delete;
    GroupsEditor& operator=(GroupsEditor const&) = delete;

    /// Reads the file into the lists; writes the default file first if there is none. Raises a
    /// Failure.
    void loadgroups();
    /// Writes the lists to the file. A member whom nobody knows becomes "[---]", for good. Raises a
    /// Failure.
    void savegroups();

private:
    void attach_buttons();
    void write_default();
    void read(std::string_view content);
    [[nodiscard]] std::string membername(std::string_view line) const;
    void came_up();
    void row_selected();
    void fill_available();
    void add_member();
    void remove_member();
    void new_group();
    void change_name();
    void delete_group();
    [[nodiscard]] controls::ListBox& current();
    [[nodiscard]] std::string ask(std::string_view prompt, std::string_view title,
                                  std::string_view present);
    void use_slot(std::size_t slot, bool used);
    [[nodiscard]] bool is_used(std::size_t slot) const;

    forms::Forms& forms_;
    forms::Groups& form_;
    platform::Boxes& boxes_;
    platform::Files& files_;
    std::string path_;
};

} // namespace config
