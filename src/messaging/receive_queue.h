#pragma once

#include "forms/frm_main.h"
#include "messaging/inbound.h"
#include "network/presence.h"

#include <string>

namespace messaging {

/// From the socket to the handlers: an arrival only stores its datagram; a tick takes one row off
/// the head of the queue and tells presence, message and nonsense apart.
class ReceiveQueue {
public:
    ReceiveQueue(forms::FrmMain& frmMain, network::Presence& presence, Inbound& inbound);

    /// One datagram has arrived on the listening socket. Nothing is looked at.
    void arrive(std::string datagram);

    /// One tick of Timer3: handles at most one row. A step that fails is skipped.
    void tick();

private:
    void handle(network::wire::Presence const& presence);
    void handle(network::wire::Message const& message);
    void remove_row();
    void show_depth();
    void show_traffic();

    forms::FrmMain& frmMain_;
    network::Presence& presence_;
    Inbound& inbound_;
};

} // namespace messaging
