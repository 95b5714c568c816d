#pragma once

#include <string_view>

namespace fuzz {

/// Ends the process when something that must hold does not, so that the fuzzer keeps the input.
void check(bool holds, std::string_view what);

} // namespace fuzz
