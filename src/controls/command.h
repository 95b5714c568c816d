#pragma once

#include <functional>
#include <utility>

namespace controls {

using Handler = std::function<void()>;

/// A routine that others run by its name: the form holds the field, the subsystem that owns the
/// behaviour attaches it. Run before anything is attached, it does nothing.
class Command {
public:
    void attach(Handler handler) { handler_ = std::move(handler); }

    void run() const
    {
        if (handler_) {
            handler_();
        }
    }

    [[nodiscard]] bool attached() const { return static_cast<bool>(handler_); }

private:
    Handler handler_;
};

} // namespace controls
