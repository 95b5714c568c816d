// How long it takes in virtual time until all have all on their lists when so many programs start
// at once: what the pace of the queues alone allows. Prints seconds, and the rows of one queue.
//
//     floor_office COUNT

#include "sim/office.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    using namespace std::chrono_literals;
    constexpr int most_peers = 200;
    int const count = argc == 2 ? std::clamp(std::atoi(argv[1]), 1, most_peers) : 0;
    if (count == 0) {
        return 2;
    }
    sim::Office office;
    for (int number = 1; number <= count; ++number) {
        auto const text = std::to_string(number);
        office.peer("ROOM" + text, "user" + text, "Somebody " + text,
                    {.settings = {{"PLAYSOUND", "0"}}});
    }
    auto const complete = [&] {
        return std::ranges::all_of(office.peers(), [&](sim::Peer& peer) {
            return peer.frmMain().allusers.count() == count;
        });
    };
    while (!complete() && office.scheduler.now() < 1h) {
        office.run_for(10ms);
    }
    std::chrono::duration<double> const took = office.scheduler.now();
    std::printf("%.2f %s\n", took.count(), complete() ? "complete" : "never");
    return 0;
}
