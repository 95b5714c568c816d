#include "network/transport.h"

#include "forms/box_open.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace network {

namespace {

void set_up(Endpoint& socket, int local_port, int remote_port)
{
    socket.Close();
    socket.Protocol = Endpoint::udp;
    socket.RemoteHost = Endpoint::everybody;
    socket.LocalPort = local_port;
    socket.RemotePort = remote_port;
    socket.Bind(local_port);
}

} // namespace

Transport::Transport(forms::FrmMain& frmMain, platform::Boxes& boxes,
                     platform::UdpSocket& listening, platform::UdpSocket& sending)
    : SckUDP(listening_name, listening), SckUDP1(sending_name, sending), frmMain_(frmMain),
      boxes_(boxes)
{
    listening.failed = [this](int number, std::string const& description) {
        show_error(number, description);
    };
}

void Transport::set_up_listening()
{
    set_up(SckUDP, frmMain_.udplistenport, frmMain_.udplistenremote);
}

void Transport::set_up_sending()
{
    set_up(SckUDP1, frmMain_.udpsendport, frmMain_.udpsendremote);
}

void Transport::close_both()
{
    SckUDP.Close();
    SckUDP1.Close();
}

void Transport::changeports1()
{
    // The prompt leaves boxopen alone: messages go on popping up behind it.
    auto const answer = ask_port("Please enter the new Listening Port #:", SckUDP.LocalPort);
    // Compared as text: 04111 is another answer than 4111.
    if (answer.empty() || answer == std::to_string(SckUDP.LocalPort)) {
        return;
    }
    int const port = text::leading_whole_number(answer);
    if (port == frmMain_.udplistenremote) {
        refuse_same_ports();
        return;
    }
    close_both();
    frmMain_.udplistenport = port;
    frmMain_.udpsendremote = port;
    rebind_both();
    frmMain_.saveallsettings.run();
}

void Transport::changeports2()
{
    auto const answer = ask_port("Please enter the new Sending Port #:", SckUDP.RemotePort);
    if (answer.empty() || answer == std::to_string(SckUDP.RemotePort)) {
        return;
    }
    int const port = text::leading_whole_number(answer);
    if (port == frmMain_.udplistenport) {
        refuse_same_ports();
        return;
    }
    close_both();
    frmMain_.udpsendport = port;
    frmMain_.udplistenremote = port;
    rebind_both();
    frmMain_.saveallsettings.run();
}

void Transport::Command6()
{
    close_both();
    rebind_both();
    frmMain_.statustext.set_caption("Reset Port");
    frmMain_.statustext.repaint.run();
    frmMain_.getusers.run();
}

void Transport::show_error(int number, std::string_view description)
{
    frmMain_.statustext.set_caption("SCKUDP ERROR" + std::to_string(number) +
                                    std::string(description));
}

std::string Transport::ask_port(std::string_view prompt, int present)
{
    return boxes_.ask({.prompt = std::string(prompt) + std::string(text::line_end),
                       .title = "Change your Ports",
                       .default_text = std::to_string(present)});
}

void Transport::rebind_both()
{
    set_up_listening();
    set_up_sending();
}

void Transport::refuse_same_ports()
{
    forms::BoxOpen const open(frmMain_);
    boxes_.show({.text = "Ports cannot be the same." + std::string(text::line_end) +
                         "   Listening and Sending"});
}

} // namespace network
