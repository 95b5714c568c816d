#pragma once

#include <QStringList>

#include <vector>

namespace terminal {

/// One thing that the companion can do: `vexlotap NAME ...`.
struct Command {
    QString name;
    QString summary; ///< one line of the help
    /// Runs it with what follows its name; returns the ExitStatus of the process.
    int (*run)(QStringList const& arguments);
};

/// All of them, in the order of the help.
[[nodiscard]] std::vector<Command> const& commands();

} // namespace terminal
