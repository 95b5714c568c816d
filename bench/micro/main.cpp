#include "pair.h"

int main(int argc, char** argv)
{
    bench::measure_ticks();
    bench::measure_lookups();
    bench::measure_arrivals();
    bench::measure_discovery();
    bench::measure_log();
    bench::measure_history();
    bench::measure_colouring();

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
