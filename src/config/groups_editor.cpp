#include "config/groups_editor.h"

#include "forms/box_open.h"
#include "network/directory.h"
#include "text/numbers.h"

#include <set>
#include <utility>
#include <vector>

namespace config {

GroupsEditor::GroupsEditor(forms::Forms& forms, platform::Boxes& boxes, platform::Files& files,
                           std::string path)
    : forms_(forms), form_(forms.groups), boxes_(boxes), file_(forms, files, std::move(path))
{
    form_.loadgroups.attach([this] { file_.load(); });
    form_.window.came_up.attach([this] { came_up(); });
    form_.List1.clicked.attach([this] { row_selected(); });
    forms_.frmMain.configgroups.clicked.attach([this] { form_.window.show(); });
    attach_buttons();
}

void GroupsEditor::attach_buttons()
{
    form_.Command4.clicked.attach([this] { add_member(); });
    form_.Command1.clicked.attach([this] { remove_member(); });
    form_.Command2.clicked.attach([this] { new_group(); });
    form_.Command5.clicked.attach([this] { change_name(); });
    form_.Command3.clicked.attach([this] { delete_group(); });
    form_.closebtn.clicked.attach([this] {
        file_.save();
        file_.load();
        form_.window.hide();
    });
    form_.Command6.clicked.attach([this] {
        form_.window.hide();
        file_.load();
    });
}

controls::ListBox& GroupsEditor::current()
{
    return form_.group.at(static_cast<std::size_t>(text::leading_whole_number(form_.curgroup)));
}

void GroupsEditor::came_up()
{
    form_.List1.choose(0);
    row_selected();
}

void GroupsEditor::row_selected()
{
    for (auto& list : form_.group) {
        list.visible = false;
    }
    auto const& row = form_.List1.text();
    if (row.empty()) {
        return;
    }
    form_.curgroup = row.substr(row.size() - 1);
    current().visible = true;
    fill_available();
}

void GroupsEditor::fill_available()
{
    auto const& frmMain = forms_.frmMain;
    std::set<std::string> members;
    for (std::string const& member : current().rows()) {
        members.insert(frmMain.letters.upper(member));
    }
    std::vector<std::string> others;
    for (std::string const& row : frmMain.userlist.rows()) {
        auto name = frmMain.letters.upper(network::row_name(row));
        if (!members.contains(name)) {
            others.push_back(std::move(name));
        }
    }
    form_.users.clear();
    form_.users.add_all(std::move(others));
}

void GroupsEditor::add_member()
{
    auto& users = form_.users;
    if (users.index() != controls::ListBox::none) {
        current().add(users.text());
        users.remove(users.index());
    }
}

void GroupsEditor::remove_member()
{
    auto& members = current();
    if (members.index() == controls::ListBox::none) {
        return;
    }
    if (members.text() != "not found") {
        form_.users.add(members.text());
    }
    members.remove(members.index());
}

std::string GroupsEditor::ask(std::string_view prompt, std::string_view title,
                              std::string_view present)
{
    forms::BoxOpen const open(forms_.frmMain);
    return boxes_.ask({.prompt = std::string(prompt) + "\r\n",
                       .title = std::string(title),
                       .default_text = std::string(present)});
}

void GroupsEditor::new_group()
{
    std::size_t slot = 0;
    while (slot < form_.group.size() && is_used(form_, slot)) {
        ++slot;
    }
    if (slot == form_.group.size()) {
        forms::BoxOpen const open(forms_.frmMain);
        boxes_.show({.text = "10 groups max!"});
        return;
    }
    auto const name = ask("Please new Group Name:", "Add Group", "");
    if (!name.empty()) {
        form_.List1.add(forms::group_row(
            name, std::to_string(slot))); // As typed; upper case comes with the save.
        use_slot(form_, slot, true);
    }
}

void GroupsEditor::change_name()
{
    auto const index = form_.List1.index();
    if (index == controls::ListBox::none) {
        return;
    }
    auto const name = ask("Please new enter Group Name:", "Change Group Name",
                          forms::group_name(form_.List1.row(index)));
    if (!name.empty()) {
        form_.List1.remove(index);
        form_.List1.add(forms::group_row(forms_.frmMain.letters.upper(name), form_.curgroup));
    }
}

void GroupsEditor::delete_group()
{
    auto const index = form_.List1.index();
    if (index == controls::ListBox::none) {
        return;
    }
    form_.List1.remove(index);
    current().clear();
    use_slot(form_, static_cast<std::size_t>(text::leading_whole_number(form_.curgroup)), false);
    if (form_.List1.empty()) {
        form_.users.clear();
        form_.users.add_all(forms_.frmMain.allusers.rows());
    } else {
        // Behind the first row there is none before: no row is selected, and the freed slot stays
        // the current one.
        form_.List1.choose(index - 1);
    }
}

} // namespace config
