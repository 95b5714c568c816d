#include "sim/segment.h"

#include "sim/socket.h"

#include <algorithm>
#include <stdexcept>

namespace sim {

namespace {

constexpr unsigned any_binding = 0;

unsigned present_binding(Segment::Host const& host, int port)
{
    auto const socket = host.bound.find(port);
    return socket == host.bound.end() ? any_binding : socket->second->bindings();
}

Segment::Payload payload(std::string_view bytes)
{
    return std::make_shared<std::string const>(bytes);
}

} // namespace

Segment::Segment(Scheduler& scheduler, std::uint64_t seed) : scheduler_(scheduler), chance_(seed) {}

Segment::Host& Segment::add_host(std::string_view name)
{
    auto& host = hosts_.emplace_back();
    host.name = name;
    host.number = static_cast<int>(hosts_.size());
    return host;
}

Segment::Host& Segment::host(std::string_view name)
{
    auto const found = std::ranges::find(hosts_, name, &Host::name);
    if (found == hosts_.end()) {
        throw std::out_of_range("no host " + std::string(name));
    }
    return *found;
}

void Segment::partition(std::initializer_list<std::initializer_list<std::string_view>> sides)
{
    for (Host& each : hosts_) {
        each.side = 0;
    }
    int side = 0;
    for (auto const& names : sides) {
        ++side;
        for (std::string_view const name : names) {
            host(name).side = side;
        }
    }
}

void Segment::inject(std::string_view bytes, int port)
{
    sent_.push_back({scheduler_.now(), {}, 0, std::string(everybody), port, payload(bytes)});
    for (Host& each : hosts_) {
        deliver(each, any_binding);
    }
    plan_arrivals();
}

void Segment::inject_to(std::string_view name, std::string_view bytes, int port)
{
    sent_.push_back({scheduler_.now(), {}, 0, std::string(everybody), port, payload(bytes)});
    deliver(host(name), any_binding);
    plan_arrivals();
}

void Segment::send(Host const& from, int from_port, Target to, std::string_view bytes)
{
    sent_.push_back(
        {scheduler_.now(), from.name, from_port, std::string(to.address), to.port, payload(bytes)});
    for (Host& each : hosts_) {
        if (to.address == everybody && each.side == from.side) {
            // The own copy lies in the own socket's buffer at once, and is lost with the binding.
            bool const own = &each == &from;
            deliver(each, own ? present_binding(each, to.port) : any_binding);
        }
    }
    plan_arrivals();
}

void Segment::note_bound(Host const& host, int port)
{
    bound_.push_back({scheduler_.now(), host.name, port});
}

void Segment::deliver(Host& to, unsigned binding)
{
    if (!to.link || chance_.happens(faults.loss)) {
        return;
    }
    schedule(to, binding);
    if (chance_.happens(faults.duplication)) {
        schedule(to, binding);
    }
}

void Segment::schedule(Host& to, unsigned binding)
{
    auto const up_to = [this](Duration longest) {
        return Duration(
            static_cast<Duration::rep>(chance_.below(static_cast<std::uint64_t>(longest.count()))));
    };
    auto moment = scheduler_.now() + latency + up_to(faults.delay);
    moment = std::max(moment, to.last_arrival);
    if (chance_.happens(faults.reordering)) {
        moment += up_to(longest_hold);
    } else {
        to.last_arrival = moment;
    }
    if (planned_.empty() || planned_.back().moment != moment) {
        auto const& newest = sent_.back();
        planned_.push_back(
            {moment, forgotten_ + sent_.size() - 1, newest.to_port, newest.bytes, {}});
    }
    planned_.back().receivers.push_back({&to, binding});
    ++in_flight_;
}

void Segment::plan_arrivals()
{
    for (Arrival& arrival : planned_) {
        auto const moment = arrival.moment;
        auto const shared = std::make_shared<Arrival const>(std::move(arrival));
        scheduler_.at(moment, [this, shared] { arrive(*shared); });
    }
    planned_.clear();
}

void Segment::arrive(Arrival const& arrival)
{
    for (auto const& [host, binding] : arrival.receivers) {
        --in_flight_;
        auto const found = host->bound.find(arrival.port);
        if (found == host->bound.end()) {
            continue;
        }
        auto& socket = *found->second;
        if ((binding == any_binding || socket.bindings() == binding) &&
            !(socket.held_back && socket.held_back(arrival.number))) {
            socket.receive(*arrival.bytes);
        }
    }
}

std::vector<std::string> Segment::texts() const
{
    std::vector<std::string> all;
    for (Sent const& each : sent_) {
        all.push_back(*each.bytes);
    }
    return all;
}

std::vector<std::string> Segment::texts_from(std::string_view host) const
{
    std::vector<std::string> all;
    for (Sent const& each : sent_) {
        if (each.host == host) {
            all.push_back(*each.bytes);
        }
    }
    return all;
}

void Segment::forget()
{
    forgotten_ += sent_.size();
    sent_.clear();
    bound_.clear();
}

} // namespace sim
