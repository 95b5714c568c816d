#pragma once

#include "sim/chance.h"
#include "tests/talk/worker.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace talk {

/// A day in a big office: people write to each other, answer, forward, go away and come back; their
/// programs crash and are started again, and the segment is not quite perfect. One seed, one day.
class WorkingDay {
public:
    static constexpr int people = 50;

    explicit WorkingDay(std::uint64_t seed);

    /// Goes on until so many messages have been put on the segment.
    void work(std::size_t messages);
    /// Everybody finishes what is on the way, and those who are down come up.
    void finish();
    /// Half of the programs end the proper way, the others are killed; then all are started again,
    /// unheard by each other.
    void start_all_again();

    [[nodiscard]] std::size_t messages() const;
    /// How often each thing was done.
    struct Done {
        int sent = 0, answers = 0, answers_to_all = 0, forwards = 0, closed = 0;
        int absences = 0, crashes = 0, leaves = 0;

        bool operator==(Done const&) const = default;
    };
    [[nodiscard]] Done const& done() const { return done_; }

    sim::Office office;
    std::deque<Worker> workers;

private:
    void open();
    void step();
    void act(Worker& worker);
    void turn_to_popup(Worker& worker, forms::Popup& popup);
    void write(Worker& worker, std::vector<int> const& others);
    void go_away(Worker& worker);
    void take_down(Worker& worker);
    void bring_up(Worker& worker);
    [[nodiscard]] std::string_view text();
    [[nodiscard]] bool happens(int percent) { return chance_.below(100) < std::uint64_t(percent); }
    [[nodiscard]] static std::vector<int> group_of(int number);
    [[nodiscard]] int number_of(Worker const& worker) const;
    /// A forward goes out in the name of its first sender: an absent one and an absent addressee
    /// would answer each other.
    [[nodiscard]] bool is_there(std::string_view name) const;
    /// One of several, any of them.
    template <typename Things>
    [[nodiscard]] auto one_of(Things const& things)
    {
        return things[chance_.below(things.size())];
    }

    sim::Chance chance_;
    Done done_;
    std::string const long_text_ = std::string(1100, 'l');
};

} // namespace talk
