#pragma once

#include "forms/forms.h"

/// What follows from an option on the windows and menus that it is about.
namespace core::settings_effects {

/// The away switch, its button and the tray's entry are there while the option `autoresmaster` is
/// on.
void offer_auto_respond(forms::Forms& forms);

/// The size in `msgfontsize` goes to every place where messages stand, and to both lists of
/// recipients. A size that is no number above 0 changes no font.
void use_message_font(forms::Forms& forms);

/// The user list gets the size of the compose box, or with the option off the small one. So the
/// key that is read last decides.
void use_list_font(forms::Forms& forms);

/// The send panel's mirror of the enter key, and the two lines of its tip.
void use_enter_key(forms::Forms& forms);

/// Puts the ten popups in front of all windows, or behind them.
void stack_popups(forms::Forms& forms);

} // namespace core::settings_effects
