#pragma once

#include "terminal/desk.h"

#include <QStringList>

namespace terminal {

/// The same command as root, by its whole path: root's shell looks for programs elsewhere. It
/// listens with the eyes of who asks: for root the desk is another one.
[[nodiscard]] QString privileged(Desk const& desk, QString const& command,
                                 QStringList const& arguments);

} // namespace terminal
