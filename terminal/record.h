#pragma once

#include <QStringList>

namespace terminal {

/// `vexlotap record FILE`: every datagram on the segment, kept in a capture file.
[[nodiscard]] int record(QStringList const& arguments);

} // namespace terminal
