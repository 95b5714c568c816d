#pragma once

#include <cstddef>
#include <deque>

namespace sim {

/// Datagrams of a segment that wait, by their numbers, oldest first. Hosts of one segment hear much
/// the same, one number behind the other, so a long wait is a few runs of numbers.
class Backlog {
public:
    void add(std::size_t number);
    /// Takes the oldest; there must be one.
    std::size_t take();
    void clear();

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }

private:
    struct Run {
        std::size_t first;
        std::size_t end;
    };

    std::deque<Run> runs_;
    std::size_t size_ = 0;
};

} // namespace sim
