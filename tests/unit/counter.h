#pragma once

#include "controls/command.h"

#include <memory>

namespace unit {

/// Attaches itself to a command and counts how often it runs.
class Counter {
public:
    explicit Counter(controls::Command& command)
    {
        command.attach([count = count_] { ++*count; });
    }

    [[nodiscard]] int count() const { return *count_; }

private:
    std::shared_ptr<int> count_ = std::make_shared<int>(0);
};

} // namespace unit
