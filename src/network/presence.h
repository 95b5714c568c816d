#pragma once

#include "forms/frm_main.h"
#include "forms/settings.h"
#include "network/transport.h"
#include "network/wire.h"
#include "platform/environment.h"

namespace network {

/// Who is on the network: rounds of discovery, and what peers' announcements, answers and sign-offs
/// do to the tables.
class Presence {
public:
    Presence(forms::FrmMain& frmMain, forms::Settings const& settings, Transport& transport,
             platform::Environment const& environment);

    /// One discovery round: rebuild `user`, announce, start the count anew. The answers come
    /// through the queue. Raises a Failure when the announcement cannot be sent.
    void getusers();

    /// The half-hourly check, one tick of the watch: 361 ticks with an empty queue make a round.
    /// Raises a Failure.
    void check_users();
    /// The same round at once, with a reload. Nothing starts the timer that would run it.
    void check_users_now();

    /// A presence row off the queue. A step that fails is skipped.
    void handle(wire::Presence const& presence);

    /// The sign-off datagram. Raises a Failure.
    void sign_off();
    /// The dash datagram, which readers drop; nothing runs it. Raises a Failure.
    void dash();

private:
    void signed_off(wire::Presence const& presence);
    void announced(wire::Presence const& presence);
    void known(wire::Presence const& presence);
    void answer();
    [[nodiscard]] int row_with(std::string_view identity) const;
    void round_under_notice(controls::Command const& before);

    forms::FrmMain& frmMain_;
    forms::Settings const& settings_;
    Transport& transport_;
    platform::Environment const& environment_;
};

} // namespace network
