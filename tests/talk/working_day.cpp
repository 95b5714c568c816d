#include "tests/talk/working_day.h"

#include <algorithm>

namespace talk {

namespace {

using namespace std::chrono_literals;

/// Messages are passed on to the reception, which is never left: two who pass on to each other
/// would never end.
constexpr int reception = 0;
constexpr int group_size = 4;

constexpr std::array<std::string_view, 12> texts{
    "Lunch at noon?",
    "He said \"no\" twice",
    "\"quoted\"",
    "is a > b, or is b > c?",
    "see [ROOM7\\BOB] = him",
    "  with blanks around  ",
    "one line\r\nand another\r\n",
    "5:30 is too late: 5:00 it is",
    "<b>Please</b> come see me & bring tea",
    ":RE: yesterday",
    "caf\xe9 at the corner",
    "1, 2, 3",
};

std::string group_file(std::vector<int> const& members)
{
    std::string file = "[Group01name  ]=" + std::string(Worker::group) + "\r\n";
    for (int const member : members) {
        file += "[Group01member]=" + Worker::id_of(member) + "\r\n";
    }
    return file;
}

} // namespace

WorkingDay::WorkingDay(std::uint64_t seed) : office(seed), chance_(seed)
{
    open();
}

void WorkingDay::open()
{
    std::vector<std::string> users;
    users.reserve(people);
    for (int number = 0; number < people; ++number) {
        users.push_back(Worker::id_of(number) + "=" + Worker::name_of(number));
    }
    office.segment.faults.loss = 1; // All who announce themselves at once are another story.
    for (int number = 0; number < people; ++number) {
        auto const digits = Worker::name_of(number).substr(7);
        auto& peer = office.host("ROOM" + digits, "user" + digits);
        Worker::Habits const habits{.hears_own_broadcasts = number % 5 == 1,
                                    .answers_what_it_forwards = number % 2 == 1};
        peer.prepare(
            Worker::name_of(number),
            {.settings = {{"SHOWOWN", habits.hears_own_broadcasts ? "1" : "0"},
                          {"AUTORESPONSEALLOW", "1"},
                          {"AUTORESPONSEMSG3", "Forward to: " + Worker::name_of(reception)},
                          {"AUTORESPONSEFORWARD", habits.answers_what_it_forwards ? "1" : "0"}},
             .users = users});
        peer.files.put("groups.txt", group_file(group_of(number)));
        peer.clock.set({2026, 11, 16, 8, 30, 0});
        workers.emplace_back(peer, number, habits).start();
    }
    office.settle();
    office.segment.faults = {.loss = 0.002, .duplication = 0.002, .reordering = 0.01};
    workers.front().peer.enter([this] { workers.front().peer.frmMain().getusers.run(); });
    office.settle();
}

std::vector<int> WorkingDay::group_of(int number)
{
    std::vector<int> members;
    for (int next = 1; next <= group_size; ++next) {
        members.push_back((number + next) % people);
    }
    std::ranges::sort(members);
    return members;
}

int WorkingDay::number_of(Worker const& worker) const
{
    for (int number = 0; number < people; ++number) {
        if (&workers[static_cast<std::size_t>(number)] == &worker) {
            return number;
        }
    }
    return people;
}

std::size_t WorkingDay::messages() const
{
    std::size_t sum = 0;
    for (Worker const& worker : workers) {
        sum += worker.messages();
    }
    return sum;
}

void WorkingDay::work(std::size_t messages)
{
    // A day that does not come to its end is no day.
    for (std::size_t turn = 0; this->messages() < messages && turn < 10 * messages; ++turn) {
        step();
    }
}

void WorkingDay::step()
{
    constexpr std::uint64_t longest_pause = 2'400'000;
    if (!happens(10)) { // Now and then somebody is quick.
        office.run_for(
            sim::Duration(static_cast<sim::Duration::rep>(chance_.below(longest_pause))));
    }
    auto& worker = workers[chance_.below(workers.size())];
    if (!worker.running()) {
        bring_up(worker);
    } else if (worker.away()) {
        if (happens(15)) {
            worker.come_back();
        }
    } else {
        act(worker);
    }
}

void WorkingDay::act(Worker& worker)
{
    auto const popups = worker.popups();
    auto const others = worker.recipients();
    if (chance_.below(400) == 0) {
        take_down(worker);
    } else if (happens(3) && number_of(worker) != reception) {
        go_away(worker);
    } else if (!popups.empty() && happens(70)) {
        turn_to_popup(worker, *one_of(popups));
    } else if (!others.empty()) {
        write(worker, others);
    }
}

void WorkingDay::turn_to_popup(Worker& worker, forms::Popup& popup)
{
    auto const others = worker.recipients();
    auto const what = chance_.below(100);
    if (what < 30) {
        ++done_.closed;
        worker.close(popup);
    } else if (what < 32) {
        ++done_.closed;
        worker.peer.person.click(worker.peer.frmMain().dissmissall);
    } else if (what < 42 && !others.empty() && is_there(popup.messagefrom.caption())) {
        ++done_.forwards;
        worker.forward(popup, one_of(others));
    } else if (what < 44) {
        ++done_.answers_to_all;
        worker.answer_all(popup, text());
    } else {
        ++done_.answers;
        worker.answer(popup, text());
    }
}

bool WorkingDay::is_there(std::string_view name) const
{
    auto const number = Worker::number_in(name);
    return !workers[static_cast<std::size_t>(number)].away();
}

void WorkingDay::write(Worker& worker, std::vector<int> const& others)
{
    auto const what = chance_.below(100);
    if (what < 2) {
        worker.send_to_all(text());
    } else if (what < 10) {
        worker.send_to_group(group_of(number_of(worker)), text());
    } else if (what < 20 && others.size() > 2) {
        auto const first = chance_.below(others.size() - 2);
        worker.send_to({others[first + 2], others[first], others[first + 1]}, text());
    } else {
        worker.send_to({one_of(others)}, text());
    }
    ++done_.sent;
}

void WorkingDay::go_away(Worker& worker)
{
    constexpr std::uint64_t responses = 4;
    office.settle(); // Two who are away would answer each other: another story, too.
    if (worker.running()) {
        ++done_.absences;
        worker.go_away(chance_.below(responses));
    }
}

void WorkingDay::take_down(Worker& worker)
{
    if (happens(50)) {
        ++done_.crashes;
        worker.crash();
        return;
    }
    ++done_.leaves;
    office.settle();
    office.run_for(2s); // Two logs that are finished in one second are one file.
    worker.leave();
}

void WorkingDay::bring_up(Worker& worker)
{
    office.run_for(2s);
    worker.start();
}

std::string_view WorkingDay::text()
{
    return happens(1) ? std::string_view(long_text_) : one_of(texts);
}

void WorkingDay::finish()
{
    for (Worker& worker : workers) {
        if (!worker.running()) {
            bring_up(worker);
        }
    }
    office.settle();
    for (Worker& worker : workers) {
        worker.catch_up();
    }
}

void WorkingDay::start_all_again()
{
    office.run_for(2s);
    office.segment.faults = {.loss = 1};
    for (Worker& worker : workers) {
        if (number_of(worker) % 2 == 0) {
            worker.crash();
        } else {
            worker.leave();
        }
    }
    office.run_for(2s);
    for (Worker& worker : workers) {
        worker.start();
    }
    office.settle();
}

} // namespace talk
