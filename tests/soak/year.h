#pragma once

#include "tests/soak/company.h"

namespace soak {

/// So many working days, five to a week.
void work_for(Company& company, int days);

/// What has come of it, in a line.
[[nodiscard]] std::string told(Company const& company);

} // namespace soak
