#pragma once

#include "qt/forward_binder.h"
#include "qt/groups_binder.h"
#include "qt/history_binder.h"
#include "qt/log_binder.h"
#include "qt/settings_binder.h"
#include "tests/qt/desk.h"

#include <QAbstractItemView>
#include <QMenu>
#include <gtest/gtest.h>

#include <string>
#include <vector>

/// The windows in the desktop's frame, used as a person would.
namespace desk {

/// The names among these that no control of the window bears.
[[nodiscard]] std::vector<std::string> missing(QWidget const& window,
                                               std::vector<std::string> const& names);

/// The names of the controls on show that take the keyboard or a click and have no accessible name.
[[nodiscard]] std::vector<std::string> nameless(QWidget const& window);

/// The names of the controls that Tab comes to, from the first one on until it comes round.
[[nodiscard]] std::vector<std::string> tab_round(QWidget& window);

/// How a row of the list reads on the screen.
[[nodiscard]] QString line_of(QAbstractItemView const& list, QString const& row);

/// The captions of the menu's entries in their order, "-" for a line, hidden ones in brackets.
[[nodiscard]] std::vector<std::string> captions(QMenu const& menu);

/// The window manager, or Escape, asks the window to close.
void ask_to_close(QWidget& window);
void press_escape(QWidget& window);

/// How often the button is pressed by a click on the control of this name.
[[nodiscard]] int presses_by_click(QWidget const& window, char const* name,
                                   controls::Button& button);

/// How often it is pressed when the window manager asks the window to close and when Escape does.
[[nodiscard]] int presses_by_closing(QWidget& window, controls::Button& button);

/// A box comes up in front of the window, and goes.
void open_and_close_a_box(QWidget& window);

/// A window and its owner on the screen.
template <typename Binder>
struct OwnedDesk : Desk {
    explicit OwnedDesk(auto& shown_form)
        : binder(shown_form, owner, codec, units), window(binder.window())
    {
    }

    template <typename Widget = QWidget>
    [[nodiscard]] Widget& control(char const* name)
    {
        return in<Widget>(window, name);
    }

    void show()
    {
        binder.show();
        settle();
    }

    void come_up(controls::Window& form)
    {
        form.show();
        show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) {
            throw std::runtime_error("the window does not become active");
        }
        show();
    }

    QWidget owner;
    Binder binder;
    QWidget& window;
};

} // namespace desk
