#include "messaging/receive_queue.h"

#include "network/wire.h"
#include "text/failure.h"
#include "text/numbers.h"

#include <algorithm>
#include <utility>

namespace messaging {

ReceiveQueue::ReceiveQueue(forms::FrmMain& frmMain, network::Presence& presence, Inbound& inbound)
    : frmMain_(frmMain), presence_(presence), inbound_(inbound)
{
    frmMain_.cuetotal.changed.attach([this] { show_traffic(); });
    frmMain_.Timer3.tick.attach([this] { tick(); });
}

void ReceiveQueue::arrive(std::string datagram)
{
    frmMain_.cue.push_back(std::move(datagram));
    show_depth();
    if (!frmMain_.boxopen.on()) {
        frmMain_.Timer3.enable();
    }
}

void ReceiveQueue::tick()
{
    if (frmMain_.boxopen.on() || frmMain_.cue.empty()) {
        return; // The timer stays on: it is switched off only behind a removal.
    }
    show_depth();
    frmMain_.curmessage = frmMain_.cue.front();
    if (network::wire::is_presence(frmMain_.curmessage)) {
        if (handle_presence() == Row::stuck) {
            return; // A marker without "=" is never removed: it blocks the queue for good.
        }
    } else {
        handle_message();
    }
    remove_row();
}

ReceiveQueue::Row ReceiveQueue::handle_presence()
{
    auto const presence = network::wire::parse_presence(frmMain_.curmessage, frmMain_.letters);
    if (!presence) {
        return Row::stuck;
    }
    text::attempt([&] { presence_.handle(*presence); });
    return Row::handled;
}

void ReceiveQueue::handle_message()
{
    auto const message = network::wire::parse_message(frmMain_.curmessage);
    if (!message) {
        return; // Foreign nonsense costs nothing, not even a log trim.
    }
    text::attempt([&] { inbound_.handle(*message); });
    text::attempt([&] { frmMain_.cleanlog.run(); });
    frmMain_.busy = "ok";
}

void ReceiveQueue::remove_row()
{
    frmMain_.cue.pop_front();
    if (frmMain_.cue.empty()) {
        frmMain_.Timer3.disable();
    }
}

void ReceiveQueue::show_depth()
{
    // One less than the rows that wait: the one at the head counts as being handled.
    frmMain_.cuetotal.set_caption(std::to_string(frmMain_.cue.size() - 1));
}

void ReceiveQueue::show_traffic()
{
    constexpr double full = 100;
    auto const depth = text::leading_number(frmMain_.cuetotal.caption());
    frmMain_.traffic.set(static_cast<int>(std::min(full, 4 * depth)));
}

} // namespace messaging
