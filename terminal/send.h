#pragma once

#include <QStringList>

namespace terminal {

/// `vexlotap send`: a message as the messenger sends it.
int send(QStringList const& arguments);

} // namespace terminal
