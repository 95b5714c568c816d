#pragma once

#include "sim/setup.h"

#include <string>
#include <string_view>

/// Who the people of the company are, by their numbers.
namespace soak::roster {

inline constexpr int most = 20;
inline constexpr std::string_view group = "FRIENDS";

[[nodiscard]] std::string name(int number);
/// The name that the person has now and then.
[[nodiscard]] std::string other_name(int number);
[[nodiscard]] std::string room(int number);
[[nodiscard]] std::string_view account(int number);
[[nodiscard]] std::string identity(int number);
/// Settings of which no two have all the same.
[[nodiscard]] sim::Setup setup(int number, int people);
/// A group of the next three.
[[nodiscard]] std::string group_file(int number, int people);

} // namespace soak::roster
