#pragma once

#include <cstddef>

namespace fuzz {

/// The largest piece of memory that was asked for in one go, since the watch began. One watch at a
/// time.
class LargestAllocation {
public:
    LargestAllocation();
    ~LargestAllocation();
    LargestAllocation(LargestAllocation const&) = delete;
    LargestAllocation& operator=(LargestAllocation const&) = delete;

    [[nodiscard]] std::size_t bytes() const;
};

} // namespace fuzz
