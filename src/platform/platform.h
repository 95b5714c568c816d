#pragma once

#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/process.h"
#include "platform/screen.h"
#include "platform/sound.h"
#include "platform/udp_socket.h"

namespace platform {

/// All that one program asks of its desktop.
struct Platform {
    Boxes& boxes;
    Clock& clock;
    Environment& environment;
    Files& files;
    Outside& outside;
    Process& process;
    Screen& screen;
    Sound& sound;
    UdpSocket& listening; ///< behind SckUDP
    UdpSocket& sending;   ///< behind SckUDP1
};

} // namespace platform
