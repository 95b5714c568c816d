#pragma once

#include "controls/list_box.h"
#include "text/character_set.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tap {

/// Who has told the segment of being there: everybody whose announcement or answer was heard, under
/// the name that was told last. Who signs off is gone.
class Roll {
public:
    struct Person {
        std::string identity;
        std::string name; ///< upper case, as in every directory

        bool operator==(Person const&) const = default;
    };

    /// `user` is the own identity: the own announcement comes back and says nothing of anybody.
    /// `letters` must outlive the roll.
    Roll(std::string user, text::CharacterSet const& letters);

    void take(std::string_view datagram);

    /// In the order of their names.
    [[nodiscard]] std::vector<Person> people() const;

    /// Into a directory, in the place of what it knew of the same people.
    void enter_into(controls::ListBox& userlist) const;

private:
    std::string user_;
    text::CharacterSet const& letters_;
    std::map<std::string, std::string> names_;
};

} // namespace tap
