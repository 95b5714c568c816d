#pragma once

#include "sim/chance.h"
#include "sim/office.h"
#include "tests/soak/colleague.h"
#include "tests/soak/diary.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace soak {

/// Something is not as it must be.
class Broken : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// An office of colleagues for a year, and what they share. One seed, one year.
class Company {
public:
    Company(std::uint64_t seed, int people);

    sim::Office office;
    sim::Chance chance;
    sim::Clock clock; ///< of the house, which is always right
    Diary diary;
    std::deque<Colleague> colleagues;
    /// Nothing on the wire goes wrong.
    bool fair = true;

    /// Time goes by.
    void pass(sim::Duration time) { office.run_for(time); }
    void pass_until(int hour, int minute);
    /// Up to so long.
    [[nodiscard]] sim::Duration up_to(sim::Duration longest);
    /// All that is on its way arrives. A queue that does not move is not waited for.
    void calm();

    void note(std::string_view who, std::string_view what);
    /// What the segment has carried goes into the diary, and what only grows is emptied.
    void close_the_books();

    [[nodiscard]] bool happens(int percent)
    {
        return chance.below(100) < static_cast<std::uint64_t>(percent);
    }
    /// One of several, any of them.
    template <typename Things>
    [[nodiscard]] auto& one_of(Things& things)
    {
        return things[static_cast<std::size_t>(chance.below(things.size()))];
    }
    /// A text that nobody has sent before.
    [[nodiscard]] std::string new_text();

    /// "03-07 14:05:59", the month, the day and the time.
    [[nodiscard]] std::string stamp() const;
    [[nodiscard]] std::uint64_t datagrams() const { return datagrams_; }

private:
    [[nodiscard]] bool is_quiet();

    std::uint64_t texts_ = 0;
    std::uint64_t datagrams_ = 0;
};

} // namespace soak
