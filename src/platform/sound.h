#pragma once

#include <string_view>

namespace platform {

class Sound {
public:
    virtual ~Sound() = default;

    /// Plays a wave file without waiting for its end. A file that is not there plays nothing.
    virtual void play(std::string_view path) = 0;
};

} // namespace platform
