#pragma once

#include "forms/forms.h"
#include "qt/codec.h"
#include "qt/main_binder.h"
#include "qt/popup_binder.h"
#include "qt/units.h"

#include <QListWidget>
#include <QPalette>
#include <QString>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <string>

/// Forms and their windows, used as a person would: everything is found by its name.
namespace desk {

/// The control of this name, which must be there.
template <typename Widget = QWidget>
[[nodiscard]] Widget& in(QWidget const& window, char const* name)
{
    auto* const found = window.findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) {
        throw std::runtime_error(std::string("no control ") + name);
    }
    return *found;
}

[[nodiscard]] QString words(char const* text);
[[nodiscard]] QPalette dark_palette();

/// Everything that the toolkit has put off is done.
void settle();
void type(QWidget& widget, char const* text);
void click(QWidget& widget);
void click_row(QListWidget& list, int row, Qt::KeyboardModifiers held = {});

struct Desk {
    qt::Codec codec{1252};
    text::CharacterSet letters = codec.letters();
    qt::Units units{screen_dots_per_inch()};
    forms::Forms forms{letters};

    [[nodiscard]] static qreal screen_dots_per_inch();
};

/// The main window on the screen, active, with a few users and captions on its buttons.
struct MainDesk : Desk {
    MainDesk();

    template <typename Widget = QWidget>
    [[nodiscard]] Widget& control(char const* name)
    {
        return in<Widget>(window, name);
    }
    /// As when the event loop is about to wait.
    void show();

    forms::FrmMain& form = forms.frmMain;
    qt::MainBinder binder{forms, codec, units};
    QWidget& window = binder.window();
};

/// A message window with a message on show.
struct PopupDesk : Desk {
    PopupDesk();

    template <typename Widget = QWidget>
    [[nodiscard]] Widget& control(char const* name)
    {
        return in<Widget>(window, name);
    }
    void show();
    /// The desktop makes it the active window.
    void activate();

    forms::Popup& form = forms.popup[0];
    qt::PopupBinder binder{form, words("popup0"), codec, units};
    QWidget& window = binder.window();
};

} // namespace desk
