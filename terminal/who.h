#pragma once

#include <QStringList>

namespace terminal {

/// `vexlotap who`: who is there, after one round.
[[nodiscard]] int who(QStringList const& arguments);

} // namespace terminal
