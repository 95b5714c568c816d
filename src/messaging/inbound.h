#pragma once

#include "forms/forms.h"
#include "messaging/stand_in.h"
#include "network/wire.h"
#include "platform/clock.h"
#include "popups/pool.h"

#include <string_view>

namespace messaging {

/// What happens to a message off the queue: whether it is for us, and how it is shown and kept.
/// Nothing goes back to the sender.
class Inbound {
public:
    Inbound(forms::Forms& forms, popups::Pool& pool, StandIn& stand_in,
            platform::Clock const& clock);

    /// Filters one message, and delivers it or, while `away` is on, leaves it to the stand-in. A
    /// step that fails is skipped.
    void handle(network::wire::Message const& message);

private:
    void deliver(network::wire::Message const& message);
    void log_row(std::string_view sender, std::string_view body);
    void history_row(std::string_view sender, network::wire::Message const& message);

    forms::Forms& forms_;
    popups::Pool& pool_;
    StandIn& stand_in_;
    platform::Clock const& clock_;
};

} // namespace messaging
