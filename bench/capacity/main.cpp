// The experiments about how many programs a segment carries, one a run.
//
//     vexlo_capacity SCENARIO [KEY=VALUE]...
//
// Writes lines of comma-separated values. `bench/capacity/run` runs them all.

#include "bench/capacity/scenarios.h"

#include <exception>
#include <iostream>
#include <map>
#include <string_view>

int main(int argc, char** argv)
{
    std::map<std::string_view, void (*)(capacity::Arguments const&, std::ostream&)> const scenarios{
        {"start", capacity::start},     {"check", capacity::check},
        {"message", capacity::message}, {"arrivals", capacity::arrivals},
        {"absence", capacity::absence},
    };
    auto const scenario = argc < 2 ? scenarios.end() : scenarios.find(argv[1]);
    if (scenario == scenarios.end()) {
        std::cerr << "vexlo_capacity start|check|message|arrivals|absence [KEY=VALUE]...\n";
        return 2;
    }
    try {
        capacity::Arguments told;
        for (int index = 2; index < argc; ++index) {
            told.add(argv[index]);
        }
        std::cout.precision(10);
        scenario->second(told, std::cout);
    } catch (std::exception const& failure) {
        std::cerr << "vexlo_capacity: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
