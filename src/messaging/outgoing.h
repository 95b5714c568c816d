#pragma once

#include "forms/frm_main.h"
#include "messaging/groups.h"

#include <string>
#include <string_view>
#include <vector>

/// What the send button makes of a draft before it goes out.
namespace messaging {

/// Characters that a person may write into one message; prefixes and quotes come on top.
inline constexpr int draft_limit = 970;

/// Display name, "> (To All) ", text.
[[nodiscard]] std::string text_to_all(std::string_view name, std::string_view text);

/// The recipient fields of a group's members, in their order. A member whom nobody has the name of
/// is left out without a word.
[[nodiscard]] std::vector<std::string> recipients_of(ChosenGroup const& group,
                                                     forms::FrmMain const& frmMain);

} // namespace messaging
