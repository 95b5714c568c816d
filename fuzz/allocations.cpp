#include "fuzz/allocations.h"

#include <algorithm>
#include <sanitizer/allocator_interface.h>

namespace fuzz {

namespace {

bool watching = false;
std::size_t largest = 0;

void on_malloc(void const volatile* /*memory*/, std::size_t size)
{
    if (watching) {
        largest = std::max(largest, size);
    }
}

void on_free(void const volatile* /*memory*/) {}

} // namespace

LargestAllocation::LargestAllocation()
{
    static bool const installed = __sanitizer_install_malloc_and_free_hooks(on_malloc, on_free) > 0;
    largest = 0;
    watching = installed;
}

LargestAllocation::~LargestAllocation()
{
    watching = false;
}

std::size_t LargestAllocation::bytes() const
{
    return largest;
}

} // namespace fuzz
