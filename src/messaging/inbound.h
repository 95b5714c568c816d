#pragma once

#include "forms/forms.h"
#include "network/wire.h"
#include "platform/clock.h"
#include "popups/pool.h"

#include <functional>
#include <string_view>

namespace messaging {

/// What happens to a message off the queue: whether it is for us, and how it is shown and kept.
/// Nothing goes back to the sender.
class Inbound {
public:
    Inbound(forms::Forms& forms, popups::Pool& pool, platform::Clock const& clock);

    /// Filters and delivers one message. A step that fails is skipped.
    void handle(network::wire::Message const& message);

    /// What answers in the user's place while `away` is on.
    std::function<void(network::wire::Message const&)> stand_in;

private:
    void deliver(network::wire::Message const& message);
    void log_row(std::string_view sender, std::string_view body);
    void history_row(std::string_view sender, network::wire::Message const& message);

    forms::Forms& forms_;
    popups::Pool& pool_;
    platform::Clock const& clock_;
};

} // namespace messaging
