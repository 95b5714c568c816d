#pragma once

#include "tap/checks/ports.h"

#include <QString>

namespace terminal {

/// One port of this machine, and which process has bound it. A process counts as the messenger when
/// its executable is `messenger`.
[[nodiscard]] tap::Port look_at_port(int number, QString const& messenger);

} // namespace terminal
