#pragma once

#include "forms/frm_main.h"
#include "forms/settings.h"
#include "platform/sound.h"

namespace desktop {

/// The sound of an arriving message. Nobody waits for its end.
class MessageSound {
public:
    MessageSound(forms::FrmMain const& frmMain, forms::Settings const& settings,
                 platform::Sound& sound)
        : frmMain_(frmMain), settings_(settings), sound_(sound)
    {
    }

    /// A message has arrived: plays the sound in force, if sounds are on.
    void playsound();
    /// Lets a person hear the file that stands in the settings window, sounds on or off.
    void soundtest();

private:
    forms::FrmMain const& frmMain_;
    forms::Settings const& settings_;
    platform::Sound& sound_;
};

} // namespace desktop
