#include "network/watch.h"

#include "forms/box_open.h"
#include "text/dates.h"
#include "text/failure.h"

#include <string>

namespace network {

void Watch::tick()
{
    try {
        uses_.presence.check_users();
        if (uses_.frmMain.minimized == "yes") {
            uses_.frmMain.window.hide();
        }
        if (uses_.trouble.is_down()) {
            probe();
        }
    } catch (text::Failure const& failure) {
        still_down(failure);
        return;
    }
    show_title();
}

void Watch::probe()
{
    uses_.transport.send(wire::probe);
    restored();
}

void Watch::restored()
{
    auto& frmMain = uses_.frmMain;
    frmMain.statustext.set_caption("Network restored");
    frmMain.getusers.run();
    uses_.log.lstMessages.add(text::log_stamp(uses_.clock.now()) + "Network Connection Restored");
    frmMain.cleanlog.run();
    frmMain.allusers.enabled = true;
    frmMain.List1.enabled = true;
}

void Watch::still_down(text::Failure const& failure)
{
    auto& frmMain = uses_.frmMain;
    frmMain.window.show(); // The next tick hides it again if it lives in the tray.
    if (Trouble::is_taken_port(failure, frmMain.bindingsocket)) {
        {
            forms::BoxOpen const open(frmMain);
            uses_.trouble.show_taken_port(frmMain.bindingsocket);
        }
        uses_.trouble.end_program();
    }
    frmMain.statustext.set_caption(Trouble::network_error);
    if (failure.text == text::no_route_to_host) {
        uses_.trouble.log_failure(failure);
        frmMain.cleanlog.run();
        frmMain.allusers.enabled = false;
        frmMain.List1.enabled = false;
    }
}

void Watch::show_title()
{
    auto& frmMain = uses_.frmMain;
    auto const title = "Vexlo - " + frmMain.letters.proper(frmMain.friendlyname) + " " +
                       std::string(state_name(uses_.transport.SckUDP.State()));
    if (frmMain.window.caption != title) {
        frmMain.window.caption = title;
    }
    frmMain.statustext.set_caption(title);
}

} // namespace network
