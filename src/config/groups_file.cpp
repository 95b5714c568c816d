#include "config/groups_editor.h"
#include "network/directory.h"
#include "text/fields.h"
#include "text/numbers.h"

#include <array>

namespace config {

namespace {

constexpr std::size_t key_length = 16;

/// "[Group01name  ]=" or "[Group01member]=": both keys have the same length.
std::string key(std::size_t slot, std::string_view what)
{
    auto const number = slot + 1;
    return "[Group" + std::string(number < 10 ? "0" : "") + std::to_string(number) +
           std::string(what) + "]=";
}

std::string name_key(std::size_t slot)
{
    return key(slot, "name  ");
}

std::string member_key(std::size_t slot)
{
    return key(slot, "member");
}

} // namespace

void GroupsEditor::loadgroups()
{
    if (!files_.exists(path_)) {
        write_default();
    }
    form_.List1.clear();
    form_.usedgroups.clear();
    for (auto& members : form_.group) {
        members.clear();
        form_.usedgroups.add("0");
    }
    auto const content = files_.read(path_);
    // Read by fields, not by lines: a comma cuts a name.
    for (text::FieldReader fields(content); !fields.at_end();) {
        read_line(fields.next());
    }
    auto& shown = forms_.frmMain.List1;
    shown.clear();
    for (std::string const& row : form_.List1.rows()) {
        shown.add(row);
    }
    form_.group[0].visible = true;
}

void GroupsEditor::read_line(std::string_view line)
{
    auto const found = line.substr(0, key_length);
    for (std::size_t slot = 0; slot < form_.group.size(); ++slot) {
        if (found == name_key(slot) && line.size() > key_length) {
            form_.List1.add(forms::group_row(line.substr(key_length), std::to_string(slot)));
            use_slot(slot, true);
        } else if (found == member_key(slot)) {
            form_.group[slot].add(membername(line));
        }
    }
}

std::string GroupsEditor::membername(std::string_view line) const
{
    auto const& users = forms_.frmMain.userlist;
    auto const address = forms_.frmMain.letters.upper(line.substr(key_length));
    for (int index = 0; index < users.count(); ++index) {
        std::string_view const row = users.row(index);
        if (row.substr(0, row.find('=')) == address) {
            return std::string(network::row_name(row));
        }
    }
    // With nobody in the directory the whole line stands as it is.
    return users.empty() ? std::string(line) : "not found";
}

void GroupsEditor::write_default()
{
    static constexpr std::array<std::string_view, 3> names{"ACCOUNTING", "FRIENDS", "SALES"};
    std::string content;
    for (std::size_t slot = 0; slot < form_.group.size(); ++slot) {
        content += name_key(slot);
        content += slot < names.size() ? names[slot] : "";
        content += text::line_end;
    }
    content += text::line_end;
    files_.write(path_, content);
}

void GroupsEditor::savegroups()
{
    auto const& letters = forms_.frmMain.letters;
    std::string content;
    auto const line = [&content](std::string_view words, std::string_view value) {
        content.append(words).append(value).append(text::line_end);
    };
    for (std::size_t slot = 0; slot < form_.group.size(); ++slot) {
        if (!is_used(slot)) {
            line(name_key(slot), "");
            continue;
        }
        for (std::string const& row : form_.List1.rows()) {
            if (row.ends_with(std::to_string(slot))) {
                line(name_key(slot), letters.upper(forms::group_name(row)));
            }
        }
    }
    for (std::size_t slot = 0; slot < form_.group.size(); ++slot) {
        for (std::string const& member : form_.group[slot].rows()) {
            if (is_used(slot)) {
                line(member_key(slot),
                     network::lookupuser(letters.upper(member), forms_.frmMain.userlist, letters));
            }
        }
    }
    files_.write(path_, content);
}

} // namespace config
