#include "messaging/receive_queue.h"

#include "messaging/queue_row.h"
#include "text/failure.h"
#include "text/numbers.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace messaging {

namespace wire = network::wire;

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
    auto const row = read_row(frmMain_.curmessage, frmMain_.letters);
    if (std::holds_alternative<Blocking>(row)) {
        return; // It is never removed: the queue is blocked for good.
    }
    if (auto const* presence = std::get_if<wire::Presence>(&row)) {
        handle(*presence);
    } else if (auto const* message = std::get_if<wire::Message>(&row)) {
        handle(*message);
    } // Foreign nonsense costs nothing, not even a log trim.
    remove_row();
}

void ReceiveQueue::handle(wire::Presence const& presence)
{
    text::attempt([&] { presence_.handle(presence); });
}

void ReceiveQueue::handle(wire::Message const& message)
{
    text::attempt([&] { inbound_.handle(message); });
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
