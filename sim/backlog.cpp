#include "sim/backlog.h"

namespace sim {

void Backlog::add(std::size_t number)
{
    ++size_;
    if (!runs_.empty() && runs_.back().end == number) {
        ++runs_.back().end;
    } else {
        runs_.push_back({number, number + 1});
    }
}

std::size_t Backlog::take()
{
    --size_;
    auto& oldest = runs_.front();
    auto const number = oldest.first++;
    if (oldest.first == oldest.end) {
        runs_.pop_front();
    }
    return number;
}

void Backlog::clear()
{
    runs_.clear();
    size_ = 0;
}

} // namespace sim
