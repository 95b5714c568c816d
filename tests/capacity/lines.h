#pragma once

#include "bench/capacity/arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace capacity_tests {

using Told = std::vector<std::string>;

/// What an experiment writes that is told this.
inline std::string lines_of(void (*scenario)(capacity::Arguments const&, std::ostream&),
                            Told const& told)
{
    capacity::Arguments arguments;
    for (std::string const& each : told) {
        arguments.add(each);
    }
    std::ostringstream out;
    scenario(arguments, out);
    return out.str();
}

} // namespace capacity_tests
