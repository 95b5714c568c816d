#pragma once

#include "sim/office.h"

#include <QElapsedTimer>
#include <QObject>

#include <chrono>
#include <functional>

namespace demo {

/// How the office's time goes by: as fast as it can, or as a person sees it.
enum class Pace { at_once, as_seen };

/// Lets the time of a simulated office pass. As a person sees it, it goes on inside boxes too.
class OfficeTime : public QObject {
public:
    /// `office` must outlive this.
    OfficeTime(sim::Office& office, Pace pace);

    /// Comes back when so much time has passed in the office.
    void pass(std::chrono::milliseconds time);

    [[nodiscard]] bool is_seen() const { return pace_ == Pace::as_seen; }

    /// So many times as fast as the clock on the wall the office's goes where it is seen.
    int speed = 1;
    /// After each step: brings what has changed to the screen.
    std::function<void()> stepped = [] {};
    /// Asked by whoever waits for the time to pass; ends the waiting by what it throws.
    std::function<void()> interrupted = [] {};

private:
    void plan_beat();
    void beat();

    sim::Office& office_;
    Pace pace_;
    QElapsedTimer since_beat_;
};

} // namespace demo
