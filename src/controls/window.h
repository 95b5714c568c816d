#pragma once

#include "controls/basic.h"

#include <string>
#include <string_view>
#include <utility>

namespace controls {

/// Twips, 1440 to the inch: the unit of every size and place.
using Twips = float;

/// A window: where it is, whether it is seen, and what it is called.
class Window {
public:
    enum class State { normal, minimised };
    /// Where the window stands among all windows of the desktop.
    enum class Stacking { usual, on_top, at_the_bottom };

    Window(Twips wide, Twips high) : width(wide), height(high) {}

    [[nodiscard]] bool visible() const { return visible_; }

    /// Shows the window in front; one that is on show already comes to the front.
    void show()
    {
        bool const comes_up = !std::exchange(visible_, true);
        ++shows_;
        if (comes_up) {
            came_up.run();
        }
        shown.run();
    }

    /// Shows the window and waits until it is hidden; everything else of the program goes on
    /// behind it.
    void show_modal()
    {
        modal = true;
        show();
        wait_until_hidden.run();
        modal = false;
    }

    void hide()
    {
        if (visible_) {
            visible_ = false;
            hidden.run();
        }
    }

    /// Counts the calls of show(), so that whoever shows the window can tell a new one.
    [[nodiscard]] unsigned shows() const { return shows_; }

    Twips left = 0;
    Twips top = 0;
    Twips width;
    Twips height;
    /// False until code or a person has given the window a place: till then the window system
    /// chooses.
    bool placed = false;
    State state = State::normal;
    Stacking stacking = Stacking::usual;
    std::string caption;
    /// The window is in the way of all other windows of the program.
    bool modal = false;
    /// From hidden to shown.
    Command came_up;
    /// Attached by whoever shows the window.
    Command wait_until_hidden;
    /// The desktop has made this the active window.
    Command activated;
    /// A person has moved the window.
    Command moved;
    /// For whoever shows the window: it shall be on the screen, or off it, at once.
    Command shown;
    Command hidden;
    /// The pointer becomes the hourglass, and itself again.
    Command busy;
    Command idle;
    /// Brings the window to the screen at once, before the routine that runs goes on.
    Command repaint;

    void place(Twips to_left, Twips to_top)
    {
        left = to_left;
        top = to_top;
        placed = true;
    }

private:
    bool visible_ = false;
    unsigned shows_ = 0;
};

} // namespace controls
