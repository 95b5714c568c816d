#pragma once

#include "config/groups_file.h"
#include "forms/forms.h"
#include "platform/boxes.h"
#include "platform/files.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace config {

/// The window in which the groups are made. Sending reads the same lists, so an edit counts at
/// once.
class GroupsEditor {
public:
    /// `path` is that of `groups.txt`.
    GroupsEditor(forms::Forms& forms, platform::Boxes& boxes, platform::Files& files,
                 std::string path);
    GroupsEditor(GroupsEditor const&) = delete;
    GroupsEditor& operator=(GroupsEditor const&) = delete;

private:
    void attach_buttons();
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

    forms::Forms& forms_;
    forms::Groups& form_;
    platform::Boxes& boxes_;
    GroupsFile file_;
};

} // namespace config
