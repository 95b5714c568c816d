#include "pair.h"

#include "sim/office.h"

#include <deque>
#include <memory>

/// A whole round of discovery in virtual time, against bare deliveries of as many datagrams.
namespace bench {

namespace {

sim::Setup acquainted(std::int64_t peers)
{
    sim::Setup setup;
    setup.settings = {{"PLAYSOUND", "0"}};
    for (std::int64_t number = 0; number < peers; ++number) {
        auto const text = std::to_string(number);
        setup.users.push_back("[ROOM" + text + "\\USER" + text + "]=SOMEBODY " + text);
    }
    return setup;
}

/// An office in which everybody is on everybody's list. Each starts alone, since a start of all at
/// once keeps the queues busy for hours of their time.
void fill(sim::Office& office, std::int64_t peers)
{
    auto const setup = acquainted(peers);
    for (std::int64_t number = 0; number < peers; ++number) {
        auto const text = std::to_string(number);
        auto& peer = office.host("ROOM" + text, "user" + text);
        peer.host.side = static_cast<int>(number) + 1;
        peer.prepare("Somebody " + text, setup);
        peer.start();
    }
    office.settle();
    office.segment.heal();
    auto& first = office.peers().front();
    first.enter([&] { first.frmMain().getusers.run(); });
    office.settle();
    office.segment.forget();
}

std::int64_t deliveries_of(std::int64_t peers)
{
    return (peers + 1) * peers; // One announcement and an answer of each, heard by all.
}

void round_of(benchmark::State& state)
{
    auto const peers = state.range(0);
    sim::Office office;
    fill(office, peers);
    auto& first = office.peers().front();
    sim::Duration took{0};
    for (auto _ : state) {
        auto const begin = office.scheduler.now();
        first.enter([&] { first.frmMain().getusers.run(); });
        office.settle();
        took = office.scheduler.now() - begin;
        office.segment.forget();
    }
    state.counters["virtual_ms"] = static_cast<double>(took.count()) / 1000;
    state.counters["due_ms"] = 120 * static_cast<double>(peers + 1);
    state.SetItemsProcessed(state.iterations() * deliveries_of(peers));
}

/// Each delivery is an event that puts its datagram into a queue, and one that takes it out.
void bare_deliveries(benchmark::State& state)
{
    auto const peers = state.range(0);
    auto const datagram = std::make_shared<std::string const>("**-[ROOM1\\USER1]=SOMEBODY 1");
    sim::Scheduler scheduler;
    std::vector<std::deque<std::string>> queues(static_cast<std::size_t>(peers));
    for (auto _ : state) {
        for (std::int64_t sent = 0; sent <= peers; ++sent) {
            for (auto& queue : queues) {
                scheduler.after(sim::Duration(200),
                                [&queue, datagram] { queue.push_back(*datagram); });
            }
        }
        scheduler.run_until(scheduler.now() + sim::Duration(200));
        for (std::int64_t row = 0; row <= peers; ++row) {
            for (auto& queue : queues) {
                scheduler.after(sim::Duration(120'000), [&queue] { queue.pop_front(); });
            }
            scheduler.run_until(scheduler.now() + sim::Duration(120'000));
        }
    }
    state.SetItemsProcessed(state.iterations() * deliveries_of(peers));
}

} // namespace

void measure_discovery()
{
    measure("discovery round", round_of, bare_deliveries, {10, 50, 200});
}

} // namespace bench
