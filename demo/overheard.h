#pragma once

#include "sim/office.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace demo {

/// What people say to each other on the segment.
class Overheard {
public:
    /// `office` must outlive it.
    explicit Overheard(sim::Office& office) : office_(office) {}

    /// The messages since the last time, one line each: the text as its readers see it, and who
    /// they are. One that goes to several in a row, as to a group, is told once.
    [[nodiscard]] std::vector<std::string> take();

private:
    [[nodiscard]] std::string name_of(std::string_view identity) const;

    sim::Office& office_;
    std::size_t heard_ = 0;
};

} // namespace demo
