#pragma once

#include "platform/outside.h"
#include "qt/codec.h"
#include "qt/desk_files.h"

namespace qt {

/// The desktop's own openers, its clipboard, and programs of the program folder.
class DeskOutside : public platform::Outside {
public:
    DeskOutside(Codec const& codec, DeskFiles const& files) : codec_(codec), files_(files) {}

    void open_text(std::string_view path) override { open(path); }
    void open_folder(std::string_view path) override { open(path); }
    void open_help() override;
    void open_web(std::string_view address) override;
    void copy(std::string_view text) override;
    void start(std::string_view path) override;

private:
    void open(std::string_view path) const;

    Codec const& codec_;
    DeskFiles const& files_;
};

} // namespace qt
