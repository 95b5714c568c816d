#include "sim/life.h"

#include "text/failure.h"

namespace sim {

namespace {

constexpr int failed_status = 1;

class Deeper {
public:
    explicit Deeper(int& depth) : depth_(depth) { ++depth_; }
    ~Deeper() { --depth_; }
    Deeper(Deeper const&) = delete;
    Deeper& operator=(Deeper const&) = delete;

private:
    int& depth_;
};

} // namespace

void Life::begin()
{
    running_ = true;
    status_.reset();
    report_.clear();
}

void Life::enter(Action const& action)
{
    if (!running_) {
        return;
    }
    Deeper const inside(depth_);
    try {
        action();
    } catch (Ended const& end_of_process) {
        end(end_of_process.status);
    } catch (text::Failure const& failure) {
        report_ = failure.text;
        end(failed_status);
    }
}

void Life::end(int status)
{
    if (!running_) {
        return;
    }
    running_ = false;
    status_ = status;
    if (ended) {
        ended();
    }
}

void Life::require() const
{
    if (!running_) {
        throw Ended{status_.value_or(0)};
    }
}

} // namespace sim
