#pragma once

#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/process.h"
#include "platform/processes.h"
#include "platform/screen.h"
#include "platform/session_entries.h"
#include "platform/sound.h"
#include "platform/tray_icon.h"
#include "platform/udp_socket.h"
#include "platform/web.h"

namespace platform {

/// All that one program asks of its desktop.
struct Platform {
    Boxes& boxes;
    Clock& clock;
    Environment& environment;
    Files& files;
    Outside& outside;
    Process& process;
    Processes& processes;
    Screen& screen;
    SessionEntries& session_entries;
    Sound& sound;
    TrayIcon& tray_icon;
    Web& web;
    UdpSocket& listening; ///< behind SckUDP
    UdpSocket& sending;   ///< behind SckUDP1
};

} // namespace platform
