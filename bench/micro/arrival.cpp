#include "pair.h"
#include "texts.h"

#include "sim/office.h"

#include <deque>
#include <malloc.h>

/// The queue, against a `std::deque` of texts.
namespace bench {

namespace {

/// Foreign words: a tick takes such a row off, and does no more.
std::string const row = repeated("foreign words ", 200);

std::size_t bytes_in_use()
{
    auto const now = mallinfo2();
    return now.uordblks + now.hblkhd;
}

double bytes_each(std::size_t before, std::int64_t rows)
{
    return static_cast<double>(bytes_in_use() - before) / static_cast<double>(rows);
}

void append_and_take(benchmark::State& state)
{
    sim::Office office;
    auto& peer = office.peer("ROOM12", "alice", "Alice");
    office.settle();
    auto const before = bytes_in_use();
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        peer.listening.arrived(row);
    }
    state.counters["bytes"] = bytes_each(before, state.range(0));
    for (auto _ : state) {
        peer.listening.arrived(row);
        peer.frmMain().Timer3.tick.run();
    }
}

void push_and_pop(benchmark::State& state)
{
    auto const before = bytes_in_use();
    std::deque<std::string> rows;
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        rows.push_back(row);
    }
    state.counters["bytes"] = bytes_each(before, state.range(0));
    for (auto _ : state) {
        rows.push_back(row);
        benchmark::DoNotOptimize(rows.front());
        rows.pop_front();
    }
}

} // namespace

void measure_arrivals()
{
    measure("arrival, append one and take one", append_and_take, push_and_pop, {1, 1000, 100000});
}

} // namespace bench
