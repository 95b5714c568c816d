#pragma once

#include "qt/units.h"

#include <QColor>
#include <QPalette>
#include <QString>

namespace qt {

/// The colours of a window. All come from its palette, so that light, dark and coloured desktops
/// look right, and texts keep a distance from their ground that everybody can read.
struct Theme {
    explicit Theme(QPalette const& palette);

    QColor ground;      ///< the window's surface
    QColor bar;         ///< title and status bar
    QColor field;       ///< where people type and choose
    QColor text;        ///< on surface, bars and notice
    QColor field_text;  ///< on field
    QColor muted;       ///< text of second rank on surface and bars
    QColor line;        ///< borders
    QColor button;      ///< the face of a plain button
    QColor accent;      ///< selection, focus, the one button that counts
    QColor accent_text; ///< on accent
    QColor notice;      ///< the ground of the banner
    QColor alarm;       ///< the close button under the pointer
    QColor alarm_text;
};

/// Between `one` and `other`; `share` is the part of `other`, 0 to 1.
[[nodiscard]] QColor blended(QColor const& one, QColor const& other, qreal share);
/// The contrast of two colours, 1 to 21; text needs 4.5.
[[nodiscard]] qreal contrast(QColor const& one, QColor const& other);
/// `wanted`, or as much darker or lighter as it takes to be legible on `ground`.
[[nodiscard]] QColor legible(QColor const& wanted, QColor const& ground, qreal least = 4.5);

/// The style sheet of a window's body.
[[nodiscard]] QString style_sheet(Theme const& theme, Units const& units);

/// A sheet with its names filled in: colours as "@accent", sizes as "@4px".
[[nodiscard]] QString filled(QString text, Theme const& theme, Units const& units);

/// So many pixels of a screen with 96 dots per inch, on this screen.
[[nodiscard]] int px(Units const& units, qreal pixels);

} // namespace qt
