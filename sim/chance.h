#pragma once

#include <cstdint>

namespace sim {

/// A small generator of our own, so that one seed gives the same run with every compiler.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next()
    {
        std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15ULL;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
        return mixed ^ (mixed >> 31);
    }

    /// 0 to `bound` - 1; 0 where the bound is 0.
    std::uint64_t below(std::uint64_t bound) { return bound == 0 ? 0 : next() % bound; }

    /// True at the given rate, 0 to 1. A rate of 0 takes no number from the sequence.
    bool happens(double rate)
    {
        constexpr double whole = 9007199254740992.0; // 2 to the 53rd
        return rate > 0 && static_cast<double>(next() >> 11) / whole < rate;
    }

private:
    std::uint64_t state_;
};

} // namespace sim
