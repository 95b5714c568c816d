#pragma once

#include <functional>
#include <optional>
#include <string>

namespace sim {

/// Thrown by the end of a process, through all that runs in it, up to its doors.
struct Ended {
    int status = 0;
};

/// Whether a program runs, and the one door through which everything enters it: the tick of a
/// timer, a datagram, what a person does. Behind the door a failure that nobody handles ends the
/// program with its error report, as the desktop does it.
class Life {
public:
    using Action = std::function<void()>;

    void begin();
    /// Does nothing when the program does not run.
    void enter(Action const& action);
    /// Ends it from outside, as a crash does.
    void end(int status);
    /// Raises Ended when the program has ended meanwhile: a modal box asks when it comes back.
    void require() const;

    [[nodiscard]] bool running() const { return running_; }
    /// Whether some routine of the program is on its way, a box included.
    [[nodiscard]] bool inside() const { return depth_ > 0; }
    /// How the last run ended; empty while it runs.
    [[nodiscard]] std::optional<int> status() const { return status_; }
    /// The text of the error report of the last run; empty when there was none.
    [[nodiscard]] std::string const& report() const { return report_; }

    /// Takes from the program what a process loses with its end.
    Action ended;

private:
    bool running_ = false;
    int depth_ = 0;
    std::optional<int> status_;
    std::string report_;
};

} // namespace sim
