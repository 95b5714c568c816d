#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace bench {

/// One row of the table: what the program does, and the floor below it, measured in the same run.
/// The names tell the runner which belongs to which.
inline void measure(std::string const& what, void (*program)(benchmark::State&),
                    void (*floor)(benchmark::State&), std::vector<std::int64_t> const& sizes)
{
    for (auto const size : sizes) {
        benchmark::RegisterBenchmark((what + "/program").c_str(), program)->Arg(size);
        benchmark::RegisterBenchmark((what + "/floor").c_str(), floor)->Arg(size);
    }
}

// Each file of this folder brings the rows of one subject.
void measure_ticks();
void measure_lookups();
void measure_arrivals();
void measure_discovery();
void measure_log();
void measure_history();
void measure_colouring();

} // namespace bench
