#pragma once

#include "forms/forms.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the messenger would send for the same words to the same people.
namespace tap {

/// One datagram, and whom it is for.
struct Letter {
    std::string asked;               ///< the name that was asked for; empty to everybody
    std::string recipient;           ///< an identity or "[ALL]"
    std::string name;                ///< the name behind it in the directory
    std::vector<std::string> others; ///< whom the name asked for would fit, too
    std::string datagram;
};

/// Lines ended as the compose box ends them, whatever ended them before.
[[nodiscard]] std::string as_typed(std::string_view text);

/// To one user, found as the messenger finds one: by the end of the name. Empty when nobody has it.
[[nodiscard]] std::optional<Letter> letter_to(std::string_view name, std::string_view text,
                                              forms::FrmMain const& frmMain);
[[nodiscard]] Letter letter_to_all(std::string_view text, forms::FrmMain const& frmMain);
/// One to each member whom the directory knows. Empty when there is no group of that name.
[[nodiscard]] std::optional<std::vector<Letter>>
letters_to_group(std::string_view group, std::string_view text, forms::Forms const& forms);

} // namespace tap
