#pragma once

#include <string>
#include <string_view>

namespace text {

/// Where a person's saved texts lie, for a profile folder: "Documents" in it when its path holds
/// "users", in any case, from the second character on, else "My Documents".
[[nodiscard]] std::string saved_folder_in_profile(std::string_view profile);

/// The same for a plain home folder.
[[nodiscard]] std::string saved_folder_in_home(std::string_view home);

} // namespace text
