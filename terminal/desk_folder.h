#pragma once

#include "tap/checks/folder.h"

#include <QString>

namespace terminal {

/// The program folder on disk.
[[nodiscard]] tap::ProgramFolder look_at_folder(QString const& path);

} // namespace terminal
