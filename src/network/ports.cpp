#include "network/ports.h"

#include "forms/box_open.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace network {

void Ports::changeports1()
{
    auto const port =
        new_port("Please enter the new Listening Port #:", transport_.SckUDP.LocalPort,
                 frmMain_.udplistenremote);
    if (port) {
        move(frmMain_.udplistenport, frmMain_.udpsendremote, *port);
    }
}

void Ports::changeports2()
{
    auto const port = new_port("Please enter the new Sending Port #:", transport_.SckUDP.RemotePort,
                               frmMain_.udplistenport);
    if (port) {
        move(frmMain_.udpsendport, frmMain_.udplistenremote, *port);
    }
}

void Ports::Command6()
{
    transport_.close_both();
    rebind_both();
    frmMain_.statustext.set_caption("Reset Port");
    frmMain_.statustext.repaint.run();
    frmMain_.getusers.run();
}

std::optional<int> Ports::new_port(std::string_view prompt, int present, int other)
{
    // The prompt leaves boxopen alone: messages go on popping up behind it.
    auto const answer = boxes_.ask({.prompt = std::string(prompt) + std::string(text::line_end),
                                    .title = "Change your Ports",
                                    .default_text = std::to_string(present)});
    // Compared as text: 04111 is another answer than 4111.
    if (answer.empty() || answer == std::to_string(present)) {
        return std::nullopt;
    }
    int const port = text::leading_whole_number(answer);
    if (port == other) {
        refuse_same_ports();
        return std::nullopt;
    }
    return port;
}

void Ports::move(int& ours, int& theirs, int port)
{
    transport_.close_both();
    ours = port;
    theirs = port;
    rebind_both();
    frmMain_.saveallsettings.run();
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
