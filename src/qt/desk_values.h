#pragma once

#include "platform/clock.h"
#include "platform/environment.h"
#include "qt/codec.h"

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

} // namespace qt
