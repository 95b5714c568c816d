#include "network/trouble.h"

#include "forms/box_open.h"
#include "text/dates.h"
#include "text/fields.h"

#include <cstdlib>

namespace network {

bool Trouble::is_down() const
{
    return uses_.frmMain.statustext.caption() == network_error;
}

bool Trouble::is_taken_port(text::Failure const& failure, std::string_view source)
{
    return failure.text == text::address_in_use && Transport::is_socket(source);
}

void Trouble::show_taken_port(std::string_view source)
{
    auto const& transport = uses_.transport;
    auto const& socket = source == Transport::listening_name ? transport.SckUDP : transport.SckUDP1;
    uses_.boxes.show({.text = "Port " + std::to_string(socket.LocalPort) + " is in use."});
}

void Trouble::end_program()
{
    uses_.menuform.unloadmecommand.run();
    uses_.process.end(0);
    std::abort(); // Not reached: the compiler does not see through the interface.
}

void Trouble::log_failure(text::Failure const& failure)
{
    uses_.log.lstMessages.add(text::log_stamp(uses_.clock.now()) + std::string(network_error) +
                              " " + failure.text);
}

void Trouble::show_no_connection()
{
    uses_.boxes.show({.text = "No Network Connection."});
}

Trouble::Told Trouble::tell_sending_failed(text::Failure const& failure)
{
    auto& frmMain = uses_.frmMain;
    frmMain.window.show();
    if (is_taken_port(failure, failure.origin)) {
        {
            forms::BoxOpen const open(frmMain);
            show_taken_port(failure.origin);
        }
        end_program();
    }
    if (failure.text == text::address_in_use) {
        return Told::nothing;
    }
    frmMain.statustext.set_caption(network_error);
    log_failure(failure);
    forms::BoxOpen const open(frmMain);
    if (failure.text == text::no_route_to_host) {
        show_no_connection();
    } else {
        uses_.boxes.show({.text = "Error #" + std::to_string(failure.number) +
                                  std::string(text::line_end) + "Error :" + failure.text});
    }
    return Told::box;
}

} // namespace network
