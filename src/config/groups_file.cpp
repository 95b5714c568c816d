#include "config/groups_file.h"

#include "network/directory.h"
#include "text/fields.h"
#include "text/numbers.h"

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace config {

namespace {

constexpr std::size_t key_length = 16;
constexpr std::size_t slots = forms::Groups::slots;

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

/// A line of the file that says something: the name of a slot, or one of its members.
struct Line {
    std::size_t slot;
    bool names_group;
    std::string_view value;
};

std::optional<Line> parsed(std::string_view line)
{
    constexpr std::string_view head = "[Group";
    if (line.size() < key_length || !line.starts_with(head)) {
        return std::nullopt;
    }
    int const number = text::leading_whole_number(line.substr(head.size(), 2));
    if (number < 1 || number > static_cast<int>(slots)) {
        return std::nullopt;
    }
    auto const slot = static_cast<std::size_t>(number) - 1;
    auto const found = line.substr(0, key_length);
    bool const names_group = found == name_key(slot);
    if (!names_group && found != member_key(slot)) {
        return std::nullopt;
    }
    return Line{slot, names_group, line.substr(key_length)};
}

} // namespace

bool is_used(forms::Groups const& groups, std::size_t slot)
{
    return groups.usedgroups.row(static_cast<int>(slot)) == "1";
}

void use_slot(forms::Groups& groups, std::size_t slot, bool used)
{
    auto const row = static_cast<int>(slot);
    groups.usedgroups.remove(row);
    groups.usedgroups.insert(row, used ? "1" : "0");
}

GroupsFile::GroupsFile(forms::Forms& forms, platform::Files& files, std::string path)
    : frmMain_(forms.frmMain), groups_(forms.groups), files_(files), path_(std::move(path))
{
}

void GroupsFile::load()
{
    if (!files_.exists(path_)) {
        write_default();
    }
    groups_.List1.clear();
    groups_.usedgroups.clear();
    for (auto& members : groups_.group) {
        members.clear();
        groups_.usedgroups.add("0");
    }
    read(files_.read(path_));
    frmMain_.List1.clear();
    frmMain_.List1.add_all(groups_.List1.rows());
    groups_.group[0].visible = true;
}

void GroupsFile::read(std::string_view content)
{
    std::vector<std::string> names;
    std::array<std::vector<std::string>, slots> members;
    // Read by fields, not by lines: a comma cuts a name.
    for (text::FieldReader fields(content); !fields.at_end();) {
        auto const field = fields.next();
        auto const line = parsed(field);
        if (line && !line->names_group) {
            members.at(line->slot).push_back(membername(field));
        } else if (line && !line->value.empty()) {
            names.push_back(forms::group_row(line->value, std::to_string(line->slot)));
            use_slot(groups_, line->slot, true);
        }
    }
    groups_.List1.add_all(std::move(names));
    for (std::size_t slot = 0; slot < slots; ++slot) {
        groups_.group[slot].add_all(std::move(members[slot]));
    }
}

std::string GroupsFile::membername(std::string_view line) const
{
    auto const& users = frmMain_.userlist;
    auto const address = frmMain_.letters.upper(line.substr(key_length));
    for (int index = 0; index < users.count(); ++index) {
        std::string_view const row = users.row(index);
        if (row.substr(0, row.find('=')) == address) {
            return std::string(network::row_name(row));
        }
    }
    // With nobody in the directory the whole line stands as it is.
    return users.empty() ? std::string(line) : "not found";
}

void GroupsFile::write_default()
{
    static constexpr std::array<std::string_view, 3> names{"ACCOUNTING", "FRIENDS", "SALES"};
    std::string content;
    for (std::size_t slot = 0; slot < slots; ++slot) {
        content += name_key(slot);
        content += slot < names.size() ? names[slot] : "";
        content += text::line_end;
    }
    content += text::line_end;
    files_.write(path_, content);
}

void GroupsFile::save()
{
    auto const& letters = frmMain_.letters;
    std::string content;
    auto const line = [&content](std::string_view words, std::string_view value) {
        content.append(words).append(value).append(text::line_end);
    };
    for (std::size_t slot = 0; slot < slots; ++slot) {
        if (!is_used(groups_, slot)) {
            line(name_key(slot), "");
            continue;
        }
        for (std::string const& row : groups_.List1.rows()) {
            if (row.ends_with(std::to_string(slot))) {
                line(name_key(slot), letters.upper(forms::group_name(row)));
            }
        }
    }
    for (std::size_t slot = 0; slot < slots; ++slot) {
        for (std::string const& member : groups_.group[slot].rows()) {
            if (is_used(groups_, slot)) {
                line(member_key(slot),
                     network::lookupuser(letters.upper(member), frmMain_.userlist, letters));
            }
        }
    }
    files_.write(path_, content);
}

} // namespace config
