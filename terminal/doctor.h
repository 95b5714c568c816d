#pragma once

#include <QStringList>

namespace terminal {

/// `vexlotap doctor`: looks at this desk with the eyes of somebody whose messenger finds nobody.
/// Mends nothing. Ends with `failed` when anything is wrong.
[[nodiscard]] int doctor(QStringList const& arguments);

} // namespace terminal
