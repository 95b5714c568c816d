#pragma once

#include "platform/screen.h"
#include "qt/units.h"

namespace qt {

/// The primary screen.
class DeskScreen : public platform::Screen {
public:
    explicit DeskScreen(Units const& units) : units_(units) {}

    [[nodiscard]] float width() const override;
    [[nodiscard]] float height() const override;

private:
    Units const& units_;
};

} // namespace qt
