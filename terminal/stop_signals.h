#pragma once

namespace terminal {

/// Ctrl+C and the polite request to end, as something to wait for: they no longer end the process
/// by themselves.
class StopSignals {
public:
    StopSignals();
    ~StopSignals();
    StopSignals(StopSignals const&) = delete;
    StopSignals& operator=(StopSignals const&) = delete;

    /// They wait from now on for whoever takes them.
    static void hold_back();

    /// Readable once one of them has come.
    [[nodiscard]] int descriptor() const { return descriptor_; }

private:
    int descriptor_;
};

} // namespace terminal
