#include "network/transport.h"

#include <string>

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

Transport::Transport(forms::FrmMain& frmMain, platform::UdpSocket& listening,
                     platform::UdpSocket& sending)
    : SckUDP(listening_name, listening), SckUDP1(sending_name, sending), frmMain_(frmMain)
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

void Transport::show_error(int number, std::string_view description)
{
    frmMain_.statustext.set_caption("SCKUDP ERROR" + std::to_string(number) +
                                    std::string(description));
}

} // namespace network
