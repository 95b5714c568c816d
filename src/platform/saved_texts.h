#pragma once

#include "platform/environment.h"
#include "platform/files.h"
#include "text/saved_folder.h"

#include <string>

namespace platform {

/// The per-user folder of saved texts, made if it is missing; its parent is not. Raises a Failure
/// when it cannot be made.
[[nodiscard]] inline std::string savedmessagesfolder(Environment const& environment, Files& files)
{
    auto const profile = environment.own_value("userprofile");
    auto folder = profile.empty() ? text::saved_folder_in_home(environment.value("userprofile"))
                                  : text::saved_folder_in_profile(profile);
    if (!files.exists(folder)) {
        files.make_folder(folder);
    }
    return folder;
}

} // namespace platform
