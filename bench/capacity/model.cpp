#include "bench/capacity/model.h"

#include "sim/segment.h"

#include <algorithm>
#include <utility>

namespace capacity {

using namespace std::chrono_literals;

namespace {

constexpr auto queue_tick = 120ms;
constexpr auto watch_tick = 5s;
constexpr int ticks_between_checks = 360;

} // namespace

Model::Model(Terms const& terms)
    : Scene(terms), programs_(static_cast<std::size_t>(terms.people)), segment_chance_(terms.seed),
      loss_(terms.loss), checks_(terms.checks)
{
    auto const people = programs_.size();
    auto const acquainted = static_cast<std::size_t>(terms.acquainted);
    for (std::size_t who = 0; who < people; ++who) {
        auto& program = programs_[who];
        program.listed.resize(people);
        program.known.resize(people);
        if (who < acquainted) {
            std::fill_n(program.known.begin(), acquainted, true);
            program.rows = terms.acquainted;
        }
    }
}

void Model::run_for(sim::Duration time)
{
    auto const end = now_ + time;
    while (step(end)) {
    }
    now_ = end;
}

bool Model::step(sim::Duration until)
{
    std::deque<Event>* next = nullptr;
    for (auto* const lane : {&people_do_, &arrivals_, &ticks_, &watches_}) {
        if (!lane->empty() &&
            (next == nullptr || std::pair(lane->front().moment, lane->front().number) <
                                    std::pair(next->front().moment, next->front().number))) {
            next = lane;
        }
    }
    if (next == nullptr || next->front().moment > until) {
        return false;
    }
    auto const event = next->front();
    next->pop_front();
    now_ = event.moment;
    happen(event);
    return true;
}

void Model::settle()
{
    while (!quiet() && step(now_ + 1h)) {
    }
}

void Model::plan(sim::Duration moment, What what, std::size_t who, unsigned starts)
{
    Event const event{moment, planned_++, what, who, starts};
    switch (what) {
    case What::arrival:
        arrivals_.push_back(event);
        break;
    case What::tick:
        ticks_.push_back(event);
        break;
    case What::watch:
        watches_.push_back(event);
        break;
    default:
        people_do_.insert(std::ranges::upper_bound(people_do_, moment, {}, &Event::moment), event);
    }
}

void Model::happen(Event const& event)
{
    switch (event.what) {
    case What::start:
        start(event.who);
        break;
    case What::find_others:
        find_others(event.who);
        break;
    case What::arrival:
        arrive(event.who);
        break;
    case What::tick:
        tick(event);
        break;
    case What::watch:
        watch(event.who);
        break;
    }
}

void Model::start_at(sim::Duration moment, int number)
{
    plan(moment, What::start, static_cast<std::size_t>(number));
}

void Model::find_others_after(sim::Duration delay, int number)
{
    plan(now_ + delay, What::find_others, static_cast<std::size_t>(number));
}

void Model::meet()
{
    for (std::size_t who = 0; who < programs_.size(); ++who) {
        programs_[who].side = who + 1;
        start(who);
    }
    settle();
    for (Program& each : programs_) {
        each.side = 0;
    }
    find_others_after(1s, 0);
    run_for(1s);
    settle();
    run_for(10s);
    sent_ = {};
}

void Model::set_count(int number, int ticks)
{
    programs_[static_cast<std::size_t>(number)].count = ticks;
}

void Model::start(std::size_t who)
{
    programs_[who].running = true;
    send(who, true);
    send(who, true);
    if (checks_) {
        plan(now_ + watch_tick, What::watch, who);
    }
}

void Model::find_others(std::size_t who)
{
    clear_list(programs_[who]);
    send(who, true);
    programs_[who].count = 0;
}

void Model::watch(std::size_t who)
{
    plan(now_ + watch_tick, What::watch, who);
    auto& program = programs_[who];
    if (program.queue.empty() && ++program.count > ticks_between_checks) {
        find_others(who);
    }
}

void Model::send(std::size_t who, bool is_announcement)
{
    datagrams_.push_back({who, is_announcement});
    sent_.datagrams += 1;
    sent_.announcements += is_announcement ? 1 : 0;
    auto& receivers = receivers_.emplace_back();
    for (std::size_t other = 0; other < programs_.size(); ++other) {
        if (programs_[other].side == programs_[who].side && !segment_chance_.happens(loss_)) {
            receivers.push_back(other);
        }
    }
    plan(now_ + sim::Segment::latency, What::arrival, datagrams_.size() - 1);
}

void Model::arrive(std::size_t datagram)
{
    for (std::size_t const who : receivers_.front()) {
        auto& program = programs_[who];
        if (!program.running) {
            continue;
        }
        program.queue.add(datagram);
        if (program.queue.size() == 1) {
            plan(now_ + queue_tick, What::tick, who, ++program.starts);
        }
    }
    receivers_.pop_front();
}

void Model::tick(Event const& event)
{
    auto& program = programs_[event.who];
    if (program.starts != event.starts) {
        return;
    }
    plan(now_ + queue_tick, What::tick, event.who, event.starts);
    handle(event.who, datagrams_[program.queue.take()]);
    if (program.queue.empty()) {
        ++program.starts; // The tick that is planned comes no more.
    }
}

void Model::handle(std::size_t who, Datagram datagram)
{
    auto const [sender, is_announcement] = datagram;
    auto& program = programs_[who];
    if (is_announcement) {
        send(who, false);
    }
    if (program.known[sender]) {
        program.names += program.listed[sender] ? 0 : 1;
        program.listed[sender] = true;
        return;
    }
    if (is_announcement) {
        send(who, false);
    }
    program.known[sender] = true;
    program.rows += 1;
    clear_list(program);
}

void Model::clear_list(Program& program)
{
    program.listed.assign(program.listed.size(), false);
    program.names = 0;
}

std::vector<std::size_t> Model::queues()
{
    std::vector<std::size_t> rows;
    for (Program const& each : programs_) {
        rows.push_back(each.queue.size());
    }
    return rows;
}

std::vector<int> Model::lists()
{
    std::vector<int> names;
    for (Program const& each : programs_) {
        names.push_back(each.names);
    }
    return names;
}

int Model::complete_directories()
{
    return static_cast<int>(std::ranges::count_if(
        programs_, [this](Program const& each) { return each.running && each.rows == people(); }));
}

bool Model::quiet()
{
    return receivers_.empty() && std::ranges::all_of(programs_, [](Program const& each) {
               return each.running && each.queue.empty();
           });
}

} // namespace capacity
