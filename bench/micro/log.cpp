#include "disk.h"
#include "pair.h"
#include "texts.h"

#include "forms/forms.h"
#include "records/rolling_log.h"
#include "sim/desktop.h"

/// The mirror of the log, against one write of the same bytes.
namespace bench {

namespace {

constexpr std::size_t row_length = 1024;

std::string const row = "11-15-26:03:15p:Msg from BOB\t\r\n" + repeated("words ", row_length - 31);

void cleanlog(benchmark::State& state)
{
    auto const letters = text::CharacterSet::western();
    forms::Forms forms(letters);
    sim::Scheduler scheduler;
    sim::Clock clock(scheduler);
    Disk disk;
    records::RollingLog log(
        {.frmMain = forms.frmMain, .log = forms.log, .clock = clock, .files = disk.files},
        disk.path("logs"));
    log.make_folder();
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        forms.log.lstMessages.add(row);
    }
    log.cleanlog();
    auto const before = Disk::writes();
    for (auto _ : state) {
        log.cleanlog();
    }
    state.counters["writes"] = benchmark::Counter(static_cast<double>(Disk::writes() - before),
                                                  benchmark::Counter::kAvgIterations);
}

void one_write(benchmark::State& state)
{
    Disk const disk;
    auto const path = disk.path("plain");
    auto const content =
        repeated(row + "\r\n", static_cast<std::size_t>(state.range(0)) * (row.size() + 2));
    Disk::plain_write(path, content);
    for (auto _ : state) {
        Disk::plain_write(path, content);
    }
}

} // namespace

void measure_log()
{
    measure("cleanlog, rows of 1 KB", cleanlog, one_write, {301});
}

} // namespace bench
