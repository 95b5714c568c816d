#pragma once

#include "bench/capacity/scene.h"
#include "sim/backlog.h"

#include <cstdint>
#include <deque>
#include <vector>

namespace capacity {

/// The same crowd without its programs: only what presence datagrams, the pace of the queue and the
/// half-hourly check make of directories and lists. It does what the complete programs do, at the
/// same microsecond and for the same seed, a hundred times as fast; tests and each run of the
/// experiments hold the two side by side.
class Model : public Scene {
public:
    explicit Model(Terms const& terms);

    [[nodiscard]] sim::Duration now() const override { return now_; }
    void run_for(sim::Duration time) override;
    void start_at(sim::Duration moment, int number) override;
    void find_others_after(sim::Duration delay, int number) override;
    void meet() override;
    void set_count(int number, int ticks) override;

    [[nodiscard]] std::vector<std::size_t> queues() override;
    [[nodiscard]] std::vector<int> lists() override;
    [[nodiscard]] int complete_directories() override;
    [[nodiscard]] bool quiet() override;
    [[nodiscard]] Sent sent() override { return sent_; }

private:
    enum class What { start, find_others, arrival, tick, watch };

    /// Of two events of one moment the one that was planned first comes first.
    struct Event {
        sim::Duration moment;
        std::uint64_t number;
        What what;
        std::size_t who;     ///< a person, or the datagram that arrives
        unsigned starts = 0; ///< of the queue's timer, when a tick was planned
    };

    struct Datagram {
        std::size_t sender;
        bool is_announcement;
    };

    struct Program {
        bool running = false;
        std::size_t side = 0; ///< programs of different sides don't hear each other
        unsigned starts = 0;
        sim::Backlog queue;
        std::vector<bool> known;
        std::vector<bool> listed;
        int rows = 0;
        int names = 0;
        int count = 0; ///< ticks of the watch towards the next check
    };

    bool step(sim::Duration until);
    void settle();
    void plan(sim::Duration moment, What what, std::size_t who, unsigned starts = 0);
    void happen(Event const& event);
    void start(std::size_t who);
    void find_others(std::size_t who);
    void tick(Event const& event);
    void watch(std::size_t who);
    void handle(std::size_t who, Datagram datagram);
    void arrive(std::size_t datagram);
    void send(std::size_t who, bool is_announcement);
    void clear_list(Program& program);

    sim::Duration now_{0};
    std::uint64_t planned_ = 0;
    std::vector<Program> programs_;
    std::vector<Datagram> datagrams_;
    std::deque<std::vector<std::size_t>> receivers_; ///< of the datagrams on their way
    /// Events of one kind come as far from now as the last one did, or later: they need no sorting.
    /// What people do is planned in the order of time, too.
    std::deque<Event> people_do_;
    std::deque<Event> arrivals_;
    std::deque<Event> ticks_;
    std::deque<Event> watches_;
    Sent sent_;
    sim::Chance segment_chance_;
    double loss_;
    bool checks_;
};

} // namespace capacity
