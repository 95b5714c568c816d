#include "tap/roll.h"

#include "messaging/queue_row.h"
#include "network/wire.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace tap {

namespace wire = network::wire;

Roll::Roll(std::string user, text::CharacterSet const& letters)
    : user_(std::move(user)), letters_(letters)
{
}

void Roll::take(std::string_view datagram)
{
    auto const row = messaging::read_row(datagram, letters_);
    auto const* const presence = std::get_if<wire::Presence>(&row);
    if (presence == nullptr) {
        return;
    }
    if (presence->marker == wire::sign_off) {
        names_.erase(presence->identity);
    } else if (presence->marker == wire::answer || presence->identity != user_) {
        names_.insert_or_assign(presence->identity, presence->name);
    }
}

std::vector<Roll::Person> Roll::people() const
{
    std::vector<Person> people;
    for (auto const& [identity, name] : names_) {
        people.push_back({.identity = identity, .name = name});
    }
    std::ranges::stable_sort(people, [this](Person const& one, Person const& other) {
        return letters_.before(one.name, other.name);
    });
    return people;
}

void Roll::enter_into(controls::ListBox& userlist) const
{
    for (auto const& [identity, name] : names_) {
        auto row = identity + "=";
        for (int index = userlist.count() - 1; index >= 0; --index) {
            if (userlist.row(index).starts_with(row)) {
                userlist.remove(index);
            }
        }
        userlist.add(row.append(name));
    }
}

} // namespace tap
