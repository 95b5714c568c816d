#pragma once

#include "terminal/desk.h"

#include <QStringList>

namespace terminal {

/// The same command with the privilege to listen beside another program, and with the eyes of who
/// asks: for root the desk is another one.
[[nodiscard]] QString privileged(Desk const& desk, QString const& command,
                                 QStringList const& arguments);

} // namespace terminal
