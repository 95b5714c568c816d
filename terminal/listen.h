#pragma once

#include <QStringList>

namespace terminal {

/// `vexlotap listen`: every datagram on the segment, and what a program does with it.
[[nodiscard]] int listen(QStringList const& arguments);

} // namespace terminal
