#include "bench/capacity/crowd.h"
#include "bench/capacity/scenarios.h"
#include "bench/capacity/stage.h"
#include "bench/capacity/talking.h"

#include <functional>

namespace capacity {

using namespace std::chrono_literals;

namespace {

/// Plays something, and tells what it cost until all is quiet again.
void cost(Crowd& crowd, std::string_view kind, std::ostream& out,
          std::function<void()> const& action)
{
    crowd.office.run_for(10s);
    crowd.office.segment.forget();
    auto const shown = crowd.shown();
    auto const begin = crowd.office.scheduler.now();
    action();
    crowd.office.settle(4h);
    auto const took = crowd.office.scheduler.now() - begin;
    std::size_t bytes = 0;
    std::size_t on_the_wire = 0;
    for (auto const& each : crowd.office.segment.sent()) {
        bytes += each.bytes->size();
        on_the_wire += wire_bytes(each.bytes->size());
    }
    auto const datagrams = crowd.office.segment.sent().size();
    out << "cost," << kind << ',' << datagrams << ',' << bytes << ',' << on_the_wire << ','
        << datagrams * static_cast<std::size_t>(crowd.people()) << ',' << crowd.shown() - shown
        << ',' << seconds(took) << '\n';
    close_popups(crowd);
}

void away_answers(Crowd& crowd, std::ostream& out)
{
    int const people = crowd.people();
    for (int number = 1; number <= people / 10; ++number) {
        go_away(crowd.peer(number));
    }
    cost(crowd, "to all while one in ten is away", out, [&] { send_to_all(crowd.peer(0)); });
    for (int number = 1; number < people; ++number) {
        go_away(crowd.peer(number));
    }
    cost(crowd, "to all while all others are away", out, [&] { send_to_all(crowd.peer(0)); });
    cost(crowd, "to one who is away", out, [&] { send_to_one(crowd.peer(0), crowd.peer(1)); });
    for (int number = 1; number < people; ++number) {
        come_back(crowd.peer(number));
    }
}

} // namespace

void message(Arguments const& told, std::ostream& out)
{
    int const people = told.count("people", 10);
    constexpr int members = 5;
    Crowd crowd({.people = people, .acquainted = people, .seed = seed_of(told)},
                {.settings = {{"REPLYTOALL", told.text("replytoall", "0")}}});
    crowd.meet();
    auto& alice = crowd.peer(0);
    auto& bob = crowd.peer(1);
    cost(crowd, "to one", out, [&] { send_to_one(alice, bob); });
    cost(crowd, "to one and the reply", out, [&] {
        send_to_one(alice, bob);
        crowd.office.settle();
        reply(bob);
    });
    make_group(crowd, alice, members);
    cost(crowd, "to a group of five", out, [&] { send_to_group(alice); });
    cost(crowd, "to all", out, [&] { send_to_all(alice); });
    cost(crowd, "to all and one reply to all", out, [&] {
        send_to_all(alice);
        crowd.office.settle();
        reply_to_all(bob);
    });
    cost(crowd, "to all and everybody replies to all", out, [&] {
        send_to_all(alice);
        crowd.office.settle();
        for (int number = 1; number < people; ++number) {
            reply_to_all(crowd.peer(number));
        }
    });
    away_answers(crowd, out);
}

void arrivals(Arguments const& told, std::ostream& out)
{
    int const people = told.count("people", 10);
    int const messages = told.count("messages", 100);
    Crowd crowd({.people = people, .acquainted = people, .seed = seed_of(told)});
    crowd.meet();
    crowd.office.segment.faults.loss = told.number("loss", 0);
    auto const shown_of = [&](std::function<void(int)> const& send) {
        auto const before = crowd.shown();
        for (int number = 0; number < messages; ++number) {
            send(number);
            crowd.office.settle();
            close_popups(crowd);
        }
        return static_cast<double>(crowd.shown() - before);
    };
    tell(out, "messages", messages);
    tell(out, "to_one", shown_of([&](int number) {
             send_to_one(crowd.peer(0), crowd.peer(1 + number % (people - 1)));
         }));
    int complete = 0;
    tell(out, "to_all", shown_of([&](int) {
             auto const before = crowd.shown();
             send_to_all(crowd.peer(0));
             crowd.office.settle();
             complete += crowd.shown() - before + 1 == static_cast<std::size_t>(people) ? 1 : 0;
         }));
    tell(out, "to_all_and_heard_by_all", complete);
    tell(out, "readers", people - 1);
}

} // namespace capacity
