#include "demo/seen.h"

#include <algorithm>

namespace demo::seen {

namespace {

bool is_from(forms::Popup const& popup, std::string_view sender)
{
    return popup.window.visible() && popup.messagefrom.caption() == sender;
}

} // namespace

bool hears(sim::Peer& peer, std::string_view sender)
{
    return peer.running() && std::ranges::any_of(peer.forms().popup, [&](auto const& popup) {
               return is_from(popup, sender);
           });
}

bool reads(sim::Peer& peer, std::string_view sender, std::string_view text)
{
    return peer.running() && std::ranges::any_of(peer.forms().popup, [&](auto const& popup) {
               return is_from(popup, sender) && in_one_line(popup.message.text()).ends_with(text);
           });
}

std::string in_one_line(std::string_view text)
{
    std::string line;
    for (char const letter : text) {
        if (letter == '\n') {
            line += " / ";
        } else if (letter != '\r') { // A key that sends leaves half of its line end behind.
            line += letter;
        }
    }
    return line;
}

std::string name_of(sim::Peer& peer)
{
    auto const& frmMain = peer.frmMain();
    return frmMain.letters.proper(frmMain.friendlyname);
}

bool has_on_list(sim::Peer& peer, std::string_view name)
{
    auto const& names = peer.frmMain().allusers.rows();
    return peer.running() && std::ranges::find(names, name) != names.end();
}

int listed(sim::Peer& peer)
{
    return peer.running() ? peer.frmMain().allusers.count() : 0;
}

std::string const& status(sim::Peer& peer)
{
    return peer.frmMain().statustext.caption();
}

} // namespace demo::seen
