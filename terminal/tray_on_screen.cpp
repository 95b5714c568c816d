#include "terminal/tray_on_screen.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace terminal {

namespace {

template <typename Answer>
using Owned = std::unique_ptr<Answer, decltype(&std::free)>;

template <typename Answer>
Owned<Answer> owned(Answer* answer)
{
    return {answer, &std::free};
}

} // namespace

bool tray_is_on_screen()
{
    int screen = 0;
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> const display(
        xcb_connect(nullptr, &screen), &xcb_disconnect);
    if (xcb_connection_has_error(display.get()) != 0) {
        return false;
    }
    auto const name = "_NET_SYSTEM_TRAY_S" + std::to_string(screen);
    auto const atom = owned(xcb_intern_atom_reply(
        display.get(),
        xcb_intern_atom(display.get(), 1, static_cast<std::uint16_t>(name.size()), name.c_str()),
        nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE) {
        return false;
    }
    auto const owner = owned(xcb_get_selection_owner_reply(
        display.get(), xcb_get_selection_owner(display.get(), atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace terminal
