#pragma once

#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/screen.h"
#include "qt/codec.h"
#include "qt/units.h"

namespace qt {

class DeskClock : public platform::Clock {
public:
    [[nodiscard]] text::LocalTime now() const override;
};

class DeskEnvironment : public platform::Environment {
public:
    explicit DeskEnvironment(Codec const& codec) : codec_(codec) {}

    [[nodiscard]] std::string value(std::string_view name) const override;
    [[nodiscard]] std::string own_value(std::string_view name) const override;

private:
    Codec const& codec_;
};

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
