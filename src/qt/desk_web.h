#pragma once

#include "platform/web.h"
#include "qt/codec.h"
#include "qt/desk_files.h"

namespace qt {

/// Downloads without a store of old answers.
class DeskWeb : public platform::Web {
public:
    DeskWeb(Codec const& codec, DeskFiles& files) : codec_(codec), files_(files) {}

    void forget(std::string_view) override {} // Nothing is stored.
    /// Follows redirections; gives up after half a minute without an answer.
    [[nodiscard]] bool download(std::string_view address, std::string_view path) override;

private:
    Codec const& codec_;
    DeskFiles& files_;
};

} // namespace qt
