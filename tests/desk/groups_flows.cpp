#include "tests/desk/groups_flows.h"

namespace desk {

std::string groups_file(std::vector<std::string> names, std::vector<std::string> const& lines)
{
    constexpr std::size_t slots = 10;
    names.resize(slots);
    flows::Lines all;
    for (std::size_t slot = 0; slot < slots; ++slot) {
        auto const number = std::to_string(slot + 1);
        all.push_back("[Group" + (number.size() < 2 ? "0" + number : number) +
                      "name  ]=" + names[slot]);
    }
    all.insert(all.end(), lines.begin(), lines.end());
    return sim::lines(all);
}

void Groups::open_with(std::string_view file)
{
    alice.files.put("groups.txt", file);
    open();
}

controls::ListBox& Groups::current_list()
{
    return form().group.at(static_cast<std::size_t>(form().curgroup.at(0) - '0'));
}

void Groups::click_in(controls::ListBox& list, std::string_view row)
{
    for (int index = 0; index < list.count(); ++index) {
        if (list.row(index).starts_with(row)) {
            alice.person.click_row(form().window, list, index);
            return;
        }
    }
    ADD_FAILURE() << "no row " << row << " to click";
}

void Groups::add(std::string_view user)
{
    click_in(form().users, user);
    press(form().Command4);
}

void Groups::take_out(std::string_view member)
{
    click_in(current_list(), member);
    press(form().Command1);
}

void Groups::make(std::string_view name)
{
    alice.boxes.will_enter(name);
    press(form().Command2);
}

void Groups::rename(std::string_view name)
{
    alice.boxes.will_enter(name);
    press(form().Command5);
}

ThreeGroups::ThreeGroups()
{
    open_with(groups_file({"ACCOUNTING", "FRIENDS", "SALES"},
                          {"[Group02member]=[ROOM33\\CARL]", "[Group02member]=[ROOM07\\BOB]",
                           "[Group03member]=[ROOM12\\ALICE]"}));
}

} // namespace desk
