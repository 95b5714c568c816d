#pragma once

#include "forms/forms.h"
#include "network/presence.h"
#include "network/transport.h"
#include "network/trouble.h"
#include "platform/boxes.h"
#include "records/rolling_log.h"

namespace core {

/// Hiding the program and ending it.
class Leaving {
public:
    struct Uses {
        forms::Forms& forms;
        network::Presence& presence;
        network::Transport& transport;
        network::Trouble& trouble;
        records::RollingLog& log;
        platform::Boxes& boxes;
    };

    explicit Leaving(Uses uses);

    /// The minimise spot: the program lives on in the tray.
    void spotmin();
    /// The close spot: asks, and hides, ends or goes on.
    void spotx();
    /// "Hide Me"; nothing runs it.
    void Command4();

private:
    void hide_main();
    [[noreturn]] void end();
    void sign_off_and_save();

    Uses uses_;
};

} // namespace core
