#include "desktop/message_sound.h"

namespace desktop {

void MessageSound::playsound()
{
    if (frmMain_.Check2.on()) {
        sound_.play(frmMain_.wavefile);
    }
}

void MessageSound::soundtest()
{
    sound_.play(settings_.wavefile);
}

} // namespace desktop
