#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace qt {

/// A button's glyph in this colour; `name` as in "glyph-send-16.png".
[[nodiscard]] QIcon glyph(QString const& name, QColor const& colour);

/// A window's icon in all its sizes: "vexloim", "popup" or "away".
[[nodiscard]] QIcon window_icon(QString const& name);

} // namespace qt
