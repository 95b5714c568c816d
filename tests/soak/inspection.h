#pragma once

#include <string_view>

namespace soak {

class Colleague;
class Company;

/// Looks whether everything a person can see agrees, and whether what is kept is bounded. Throws
/// Broken.
void inspect(Colleague& who);

/// The text stands in the history of whoever was to have it.
void require_received(Colleague& who, std::string_view text);

/// On a good day: a round of discovery brings everybody who hears onto the lists of all who do.
void inspect_together(Company& company);

} // namespace soak
