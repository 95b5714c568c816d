#include "qt/groups_binder.h"

namespace qt {

GroupsBinder::GroupsBinder(forms::Groups& form, QWidget& owner, Codec const& codec,
                           Units const& units)
    : window_(units, &owner), frame_(form.window, window_, codec, units, {.takes_keyboard = true})
{
    frame_.close_by(form.Command6);
    auto& parts = frame_.parts;
    parts.bind(form.List1, window_.List1, forms::group_tail);
    for (std::size_t slot = 0; slot < form.group.size(); ++slot) {
        parts.bind(form.group[slot], *window_.group[slot]);
    }
    parts.bind(form.users, window_.users);
    parts.bind(form.Command1, window_.Command1);
    parts.bind(form.Command2, window_.Command2);
    parts.bind(form.Command3, window_.Command3);
    parts.bind(form.Command4, window_.Command4);
    parts.bind(form.Command5, window_.Command5);
    parts.bind(form.Command6, window_.Command6);
    parts.bind(form.closebtn, window_.closebtn);
}

} // namespace qt
