#pragma once

#include "forms/forms.h"

#include <string>
#include <string_view>

/// The two whole texts of `settings.txt`. They differ in their order and in their ends, and the
/// first names the sound under a key that no reader looks for.
namespace core::settings_texts {

/// The file of a first run: the name just entered, the window's place, and the defaults. `sound` is
/// the path of the program's own sound.
[[nodiscard]] std::string of_first_run(forms::FrmMain const& frmMain, std::string_view sound);

/// The file of a save: the options as they stand.
[[nodiscard]] std::string of_save(forms::Forms const& forms);

} // namespace core::settings_texts
