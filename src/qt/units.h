#pragma once

#include "controls/window.h"

#include <QtGlobal>

namespace qt {

/// Twips on this screen: 15 to the pixel at 96 dots per inch.
class Units {
public:
    explicit Units(qreal dots_per_inch = 96) : twips_per_pixel_(1440 / dots_per_inch) {}

    [[nodiscard]] int pixels(controls::Twips twips) const
    {
        return qRound(static_cast<qreal>(twips) / twips_per_pixel_);
    }

    [[nodiscard]] controls::Twips twips(int pixels) const
    {
        return static_cast<controls::Twips>(pixels * twips_per_pixel_);
    }

private:
    qreal twips_per_pixel_;
};

} // namespace qt
