#include "network/endpoint.h"

#include "text/failure.h"

#include <array>

namespace network {

void Endpoint::Bind(int port)
{
    try {
        socket_.bind(port);
    } catch (text::Failure& failure) {
        failure.origin = name_;
        throw;
    }
}

void Endpoint::SendData(std::string_view text)
{
    try {
        socket_.send(text, RemoteHost, RemotePort);
    } catch (text::Failure& failure) {
        failure.origin = name_;
        throw;
    }
}

std::string_view state_name(int state)
{
    static constexpr std::array<std::string_view, 10> names{
        "Closed",        "Listening",  "Listening", "Connection pending",      "Resolving host",
        "Host resolved", "Connecting", "Connected", "Server is disconnecting", "Error",
    };
    auto const index = static_cast<std::size_t>(state);
    return index < names.size() ? names[index] : std::string_view{};
}

std::string_view sender_state_name(int state)
{
    return state == 1 ? "Ready" : state_name(state);
}

} // namespace network
