#pragma once

#include <QJsonObject>

namespace driver {

/// Obeys one command of a test and gives its reply. Reading happens here and now; what acts is only
/// posted, so that the reply never waits for a box to be closed. Throws `Refusal`.
QJsonObject obey(QJsonObject const& command);

} // namespace driver
