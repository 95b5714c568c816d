#include "terminal/mouth.h"

namespace terminal {

Mouth::Mouth(int port)
{
    constexpr int any_port = 0;
    endpoint_.RemoteHost = network::Endpoint::everybody;
    endpoint_.RemotePort = port;
    endpoint_.Bind(any_port);
}

} // namespace terminal
