#pragma once

#include <string_view>

namespace platform {

class Web {
public:
    virtual ~Web() = default;

    /// Makes the next download of this address come from its host, not from a store of old answers.
    virtual void forget(std::string_view address) = 0;
    /// Saves what an address gives into a file, and waits for it. Whether the file was saved.
    [[nodiscard]] virtual bool download(std::string_view address, std::string_view path) = 0;
};

} // namespace platform
