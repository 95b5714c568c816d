#pragma once

namespace platform {

/// The part of the screen that windows are centred on, in twips.
class Screen {
public:
    virtual ~Screen() = default;

    [[nodiscard]] virtual float width() const = 0;
    [[nodiscard]] virtual float height() const = 0;
};

} // namespace platform
