#pragma once

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QString>

namespace qt {

/// A button's glyph in this colour; `name` as in "glyph-send-16.png".
[[nodiscard]] QIcon glyph(QString const& name, QColor const& colour);

/// The same for who draws it again and again: each colour is made once. Every new icon would leave
/// its pictures in the toolkit's cache.
class Glyph {
public:
    void set_name(QString const& name);
    [[nodiscard]] bool empty() const { return name_.isEmpty(); }
    [[nodiscard]] QIcon const& icon(QColor const& colour);

private:
    QString name_;
    QHash<QRgb, QIcon> icons_;
};

/// A window's icon in all its sizes: "vexloim", "popup" or "away".
[[nodiscard]] QIcon window_icon(QString const& name);

} // namespace qt
