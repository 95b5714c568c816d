#pragma once

#include "text/dates.h"

namespace platform {

class Clock {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual text::LocalTime now() const = 0;
};

} // namespace platform
