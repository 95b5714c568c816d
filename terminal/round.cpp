#include "terminal/round.h"

#include "terminal/mouth.h"

#include "network/wire.h"

namespace terminal {

namespace wire = network::wire;

Heard listen_around(Ear& ear, tap::Roll& roll, std::chrono::milliseconds time, Enough const& enough)
{
    return hear(ear, {.time = time, .count = {}, .enough = enough},
                [&](tap::Datagram const& datagram) { roll.take(datagram.bytes); });
}

Heard ask_around(Desk const& desk, Ear& ear, tap::Roll& roll, std::chrono::milliseconds time,
                 Enough const& enough)
{
    auto const& frmMain = desk.folder.forms.frmMain;
    Mouth mouth(frmMain.udpsendremote);
    mouth.say(wire::presence(wire::announce, frmMain.user, frmMain.friendlyname));
    return listen_around(ear, roll, time, enough);
}

} // namespace terminal
