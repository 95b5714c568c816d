#pragma once

#include "platform/web.h"
#include "qt/codec.h"
#include "qt/desk_files.h"

#include <chrono>

namespace qt {

/// Downloads without a store of old answers.
class DeskWeb : public platform::Web {
public:
    DeskWeb(Codec const& codec, DeskFiles& files) : codec_(codec), files_(files) {}

    void forget(std::string_view) override {} // Nothing is stored.
    /// Follows redirections. A line that is cut is noticed by the length that the host has told:
    /// where it told none, what came is the whole. A text in pieces that ends between two of them
    /// is refused, but where the line's end comes with the last bytes the toolkit takes it for
    /// whole.
    [[nodiscard]] bool download(std::string_view address, std::string_view path) override;

    /// How long a host may be silent.
    std::chrono::milliseconds patience{30'000};

private:
    Codec const& codec_;
    DeskFiles& files_;
};

} // namespace qt
