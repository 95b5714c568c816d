#pragma once

#include "forms/forms.h"
#include "network/transport.h"
#include "network/wire.h"
#include "platform/clock.h"

#include <string_view>

namespace messaging {

/// While the user is away: answers a message in the user's place, or passes it on to somebody else.
/// What remains of the message is a row in the history.
class StandIn {
public:
    StandIn(forms::Forms& forms, network::Transport& transport, platform::Clock const& clock);

    /// Answers or forwards one message that has passed the filter. A step that fails is skipped.
    void handle(network::wire::Message const& message);

    /// A person picks an entry of the auto-respond menu: 0 to 3 a response, 4 off.
    void choose(std::size_t entry);

private:
    void forward(network::wire::Message const& message, std::string_view target);
    void respond(network::wire::Message const& message);
    void history_row(std::string_view kind, network::wire::Message const& message);

    forms::Forms& forms_;
    network::Transport& transport_;
    platform::Clock const& clock_;
};

} // namespace messaging
