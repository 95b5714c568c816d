#include "bench/capacity/talking.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace capacity {

namespace {

constexpr std::string_view words = "Who has the key to the big meeting room on the third floor?";
constexpr std::string_view answer = "I have, I am bringing it right away.";
constexpr std::string_view group = "Team";
constexpr int users_tab = 0;
constexpr int groups_tab = 1;
constexpr std::size_t first_response = 0;
constexpr std::size_t off_entry = 4;

std::string name_of(sim::Peer& peer)
{
    auto& frmMain = peer.frmMain();
    return frmMain.letters.proper(frmMain.friendlyname);
}

forms::Popup& popup_of(sim::Peer& peer)
{
    auto& popups = peer.forms().popup;
    auto const open = std::ranges::find_if(
        popups, [](forms::Popup const& popup) { return popup.window.visible(); });
    if (open == popups.end()) {
        throw std::logic_error(peer.host.name + " has nothing to reply to");
    }
    return *open;
}

} // namespace

void send_to_one(sim::Peer& from, sim::Peer& to)
{
    from.person.send_to(name_of(to), words);
}

void send_to_all(sim::Peer& from)
{
    from.person.tick_all(); // The box is empty again behind each message to all.
    from.person.send(words);
}

void reply(sim::Peer& from)
{
    from.person.answer(popup_of(from), answer);
}

void reply_to_all(sim::Peer& from)
{
    auto& popup = popup_of(from);
    from.person.turn_to(popup.window); // The box comes with the first look at the window.
    if (!popup.Check1.on()) {
        from.person.tick(popup.window, popup.Check1);
    }
    from.person.answer(popup, answer);
}

void make_group(Crowd& crowd, sim::Peer& owner, int members)
{
    constexpr std::size_t slot = 3;
    owner.frmMain().List1.add(forms::group_row(group, std::to_string(slot)));
    for (int number = 1; number <= members; ++number) {
        owner.forms().groups.group.at(slot).add(name_of(crowd.peer(number)));
    }
}

void send_to_group(sim::Peer& from)
{
    from.person.open_tab(groups_tab);
    from.person.pick_group(group);
    from.person.send(words);
    from.person.open_tab(users_tab);
}

void go_away(sim::Peer& peer)
{
    peer.person.choose(peer.forms().menuform.autores, first_response);
}

void come_back(sim::Peer& peer)
{
    peer.person.choose(peer.forms().menuform.autores, off_entry);
}

void close_popups(Crowd& crowd)
{
    for (sim::Peer& each : crowd.office.peers()) {
        each.enter([&each] { each.frmMain().dissmissall.click(); });
    }
}

std::size_t wire_bytes(std::size_t datagram)
{
    constexpr std::size_t udp = 8;
    constexpr std::size_t ip = 20;
    constexpr std::size_t ethernet = 14 + 4;
    constexpr std::size_t smallest_frame = 64;
    constexpr std::size_t largest_fragment = 1480;
    auto const frames = (datagram + udp + largest_fragment - 1) / largest_fragment;
    return std::max(smallest_frame, datagram + udp + frames * (ip + ethernet));
}

} // namespace capacity
