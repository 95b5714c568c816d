#pragma once

#include <QStringList>

namespace terminal {

/// `vexlotap replay FILE`: a capture into a complete program in memory, in no time; or, on request,
/// onto the real segment.
[[nodiscard]] int replay(QStringList const& arguments);

} // namespace terminal
