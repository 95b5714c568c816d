#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace desk {

#if defined(__SANITIZE_ADDRESS__)
using ToolkitLeaks = __lsan::ScopedDisabler;
#else
struct ToolkitLeaks {};
#endif

/// A failure that flies through the toolkit leaves the toolkit's temporaries behind. What is
/// allocated in a test of such a fixture is not looked for at the end.
template <typename Fixture>
class WithToolkitLeaks : ToolkitLeaks, public Fixture {
};

} // namespace desk
