#pragma once

#include "forms/frm_main.h"
#include "forms/others.h"
#include "network/transport.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/process.h"
#include "text/failure.h"

#include <string_view>

namespace network {

/// What start-up, sending, the network watch and the exit have in common when the network refuses.
class Trouble {
public:
    struct Uses {
        forms::FrmMain& frmMain;
        forms::Log& log;
        forms::MenuForm& menuform;
        Transport& transport;
        platform::Boxes& boxes;
        platform::Clock& clock;
        platform::Process& process;
    };

    /// The state in which the network is down is this text in the status line, and nothing else.
    static constexpr std::string_view network_error = "Network Error";

    explicit Trouble(Uses uses) : uses_(uses) {}

    [[nodiscard]] bool is_down() const;

    /// Whether a failure says that the port of a known socket is taken. `source` names the socket:
    /// that of the present bind step, or the failure's origin.
    [[nodiscard]] static bool is_taken_port(text::Failure const& failure, std::string_view source);

    /// "Port n is in use.", for the socket called `source`.
    void show_taken_port(std::string_view source);
    /// Unloads the tray window and ends the process. Does not return.
    [[noreturn]] void end_program();

    /// Adds the log row of a network failure.
    void log_failure(text::Failure const& failure);
    void show_no_connection();

    enum class Told { nothing, box };

    /// What every send does when it fails: shows the main window and tells by a box what happened.
    /// A taken port ends the program, if its socket is known, and is otherwise passed over.
    Told tell_sending_failed(text::Failure const& failure);

private:
    Uses uses_;
};

} // namespace network
