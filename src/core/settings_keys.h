#pragma once

#include "forms/forms.h"

#include <string_view>

/// The keys that the reader of `settings.txt` knows, and what each does.
namespace core::settings_keys {

/// Takes one field of the file: its value goes to the option, and what follows from it at once is
/// done. A field of no known key, exactly as it is written, is dropped. Raises a Failure when a
/// flag is no number or a number does not fit.
void take(std::string_view field, forms::Forms& forms);

} // namespace core::settings_keys
