#pragma once

#include "platform/sound.h"
#include "qt/desk_files.h"

#include <QSoundEffect>

#include <memory>

namespace qt {

/// Plays wave files. The sound system is woken by the first sound, not before.
class DeskSound : public platform::Sound {
public:
    explicit DeskSound(DeskFiles const& files) : files_(files) {}

    void play(std::string_view path) override;

private:
    DeskFiles const& files_;
    std::unique_ptr<QSoundEffect> effect_;
};

} // namespace qt
