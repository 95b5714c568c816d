#include "network/ports.h"

#include "forms/box_open.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace network {

void Ports::changeports1()
{
    // The prompt leaves boxopen alone: messages go on popping up behind it.
    auto const answer =
        ask_port("Please enter the new Listening Port #:", transport_.SckUDP.LocalPort);
    // Compared as text: 04111 is another answer than 4111.
    if (answer.empty() || answer == std::to_string(transport_.SckUDP.LocalPort)) {
        return;
    }
    int const port = text::leading_whole_number(answer);
    if (port == frmMain_.udplistenremote) {
        refuse_same_ports();
        return;
    }
    transport_.close_both();
    frmMain_.udplistenport = port;
    frmMain_.udpsendremote = port;
    rebind_both();
    frmMain_.saveallsettings.run();
}

void Ports::changeports2()
{
    auto const answer =
        ask_port("Please enter the new Sending Port #:", transport_.SckUDP.RemotePort);
    if (answer.empty() || answer == std::to_string(transport_.SckUDP.RemotePort)) {
        return;
    }
    int const port = text::leading_whole_number(answer);
    if (port == frmMain_.udplistenport) {
        refuse_same_ports();
        return;
    }
    transport_.close_both();
    frmMain_.udpsendport = port;
    frmMain_.udplistenremote = port;
    rebind_both();
    frmMain_.saveallsettings.run();
}

void Ports::Command6()
{
    transport_.close_both();
    rebind_both();
    frmMain_.statustext.set_caption("Reset Port");
    frmMain_.statustext.repaint.run();
    frmMain_.getusers.run();
}

std::string Ports::ask_port(std::string_view prompt, int present)
{
    return boxes_.ask({.prompt = std::string(prompt) + std::string(text::line_end),
                       .title = "Change your Ports",
                       .default_text = std::to_string(present)});
}

void Ports::rebind_both()
{
    transport_.set_up_listening();
    transport_.set_up_sending();
}

void Ports::refuse_same_ports()
{
    forms::BoxOpen const open(frmMain_);
    boxes_.show({.text = "Ports cannot be the same." + std::string(text::line_end) +
                         "   Listening and Sending"});
}

} // namespace network
