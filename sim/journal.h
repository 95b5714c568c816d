#pragma once

#include <string>
#include <utility>
#include <vector>

namespace sim {

/// What one program asked of its desktop, in order, for tests that are about order: "write
/// settings.txt", "bind 4111", "send ***...". It keeps nothing until it is switched on.
class Journal {
public:
    void switch_on() { on_ = true; }
    void clear() { lines_.clear(); }

    void note(std::string line)
    {
        if (on_) {
            lines_.push_back(std::move(line));
        }
    }

    [[nodiscard]] std::vector<std::string> const& lines() const { return lines_; }

private:
    bool on_ = false;
    std::vector<std::string> lines_;
};

} // namespace sim
