#pragma once

#include <QString>

namespace qt {

/// The value of the key "Exec" in a desktop entry that runs `command`, a program's path between two
/// double quotes and what follows. Each character of the path stands for itself, quotes, dollars
/// and percents too.
[[nodiscard]] QString exec_line(QString const& command);

/// The command that such a value runs.
[[nodiscard]] QString command_of(QString const& exec_line);

} // namespace qt
