#pragma once

#include "controls/basic.h"
#include "controls/list_box.h"
#include "controls/menu.h"
#include "controls/text_box.h"
#include "controls/window.h"
#include "forms/popup.h"

#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <string_view>

namespace sim {

class Peer;

/// Somebody wants to do what nobody can do: the control is hidden, disabled, or behind a box.
class Impossible : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// What a person can do in front of a program, and no more.
class Person {
public:
    explicit Person(Peer& peer) : peer_(peer) {}

    /// Clicks into the compose box, behind all that is there, and types.
    void type(std::string_view text);
    /// Puts the caret behind the first `place` characters of the draft.
    void put_caret(std::size_t place);

    enum class With { nothing, ctrl };
    /// Enter in the compose box: the box makes a line end at the caret, then the key comes up.
    void press_enter(With held = With::nothing);
    /// Any other key in the compose box; `code` is that of the key.
    void press_key(int code);

    /// Selects these names in the list of users, and no others; the last one has the mark.
    void pick(std::initializer_list<std::string_view> names);
    void pick(std::string_view name) { pick({name}); }
    /// Takes the selection from all.
    void pick_nobody() { pick({}); }

    void open_tab(int tab);
    void pick_group(std::string_view name);
    /// Ticks or unticks "Send to All Users".
    void tick_all();

    /// A button of the main window.
    void click(controls::Button const& button);
    /// A button of a popup.
    void click(forms::Popup const& popup, controls::Button const& button)
    {
        click(popup.window, button);
    }
    /// A button of any other window.
    void click(controls::Window const& window, controls::Button const& button);
    /// A click on row `index` of a list.
    void click_row(controls::Window const& window, controls::ListBox& list, int index);
    /// A click on a check box.
    void tick(controls::Window const& window, controls::CheckBox& box);
    /// Writes over all that stands in a box, character by character.
    void fill(controls::Window const& window, controls::TextBox& box, std::string_view text);
    /// Turns to a window that is on show: the desktop makes it the active one.
    void turn_to(controls::Window const& window);
    /// Turns to a popup and types where the caret of its reply stands.
    void type_reply(forms::Popup& popup, std::string_view text);
    /// Enter in the reply of a popup, as in the compose box.
    void press_enter_in(forms::Popup& popup, With held = With::nothing);
    /// Picks a row of the history, counted from 1, by a click.
    void pick_history(int number);
    /// The same by a double click.
    void double_click_history(int number);
    void choose(controls::Menu const& menu, std::size_t entry);

    // Whole stories, on the main window.
    void send(std::string_view text);
    void send_to(std::string_view name, std::string_view text);
    /// Types the reply of a popup and presses its send button.
    void answer(forms::Popup& popup, std::string_view text);
    /// The close spot, with the answer that ends the program.
    void leave();

private:
    void require_main_window() const;
    void require_window(controls::Window const& window) const;
    void require_nothing_modal_before(controls::Window const& window) const;
    void require(bool possible, std::string_view what) const;

    Peer& peer_;
};

} // namespace sim
