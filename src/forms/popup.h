#pragma once

#include "controls/basic.h"
#include "controls/text_box.h"
#include "controls/window.h"

#include <array>
#include <cstddef>
#include <string>

namespace forms {

/// A message window: one of the ten of the pool, or the window of recalled messages.
struct Popup {
    static constexpr std::size_t first_button = 13;

    controls::Window window{5235, 6855};

    controls::RichText message;
    controls::TextBox temp;      ///< the reply being written
    controls::Label messagefrom; ///< the sender's name, proper case
    controls::Label Label1{"Response"};
    controls::Label Label2{"Message from"};
    controls::Label Label3;                             ///< "(Sent to ALL)" or empty
    controls::Label beensent{"This Msg has been sent"}; ///< in the recall window only
    controls::CheckBox Check1{0, "Reply to All"};
    std::string punumber = "0"; ///< the slot, as text
    std::string response;       ///< who the reply goes to, while it is being sent
    controls::Button Command1{"Close"};
    controls::Button Command2{"Send"};
    controls::Button fwd{"Forward"};
    controls::Button printbtn{"Save / Print"};
    std::array<controls::Button, 12> qb; ///< quick answers, numbers 13 to 24

    /// Quick answer `number`, 13 to 24.
    [[nodiscard]] controls::Button& quick(std::size_t number)
    {
        return qb.at(number - first_button);
    }

    controls::Command colourmessage;
    controls::Command ontop;
    controls::Command ontopoff;
};

} // namespace forms
