#pragma once

#include "sim/chance.h"
#include "sim/scheduler.h"
#include "text/failure.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

class Socket;

/// One network segment: a datagram to a port reaches every socket that is bound to the port on any
/// host, the sender's own too. What can go wrong on a segment goes wrong at the rates set here, the
/// same way for the same seed.
class Segment {
public:
    /// One datagram's bytes, shared by all who get them.
    using Payload = std::shared_ptr<std::string const>;

    static constexpr std::size_t largest_datagram = 65'507;
    static constexpr std::string_view everybody = "255.255.255.255";
    static constexpr Duration latency{200};
    /// The longest time for which a datagram is held back to let others overtake it.
    static constexpr Duration longest_hold{30'000};

    /// Rates from 0 to 1, for each receiver of each datagram on its own.
    struct Faults {
        double loss = 0;
        double duplication = 0;
        double reordering = 0;
        Duration delay{0}; ///< up to so much more than the latency; delay alone keeps the order
    };

    /// One host's place on the segment.
    struct Host {
        std::string name;
        int number = 0;      ///< the last part of its address
        bool link = true;    ///< false: nothing comes in, and sends have no route
        int side = 0;        ///< hosts of different sides of a partition don't hear each other
        std::set<int> taken; ///< ports that some other program holds
        /// A send fails so, once `sends_before_failure` more have gone out.
        std::optional<text::Failure> send_failure;
        int sends_before_failure = 0;

        std::map<int, Socket*> bound;
        Duration last_arrival{0};
    };

    /// One datagram that was put on the segment.
    struct Sent {
        Duration when;
        std::string host; ///< empty when it came from outside the office
        int from_port;
        std::string to; ///< the address; no other than that of everybody reaches anybody
        int to_port;
        Payload bytes;
    };

    /// One port that a host has bound.
    struct Bound {
        Duration when;
        std::string host;
        int port;

        bool operator==(Bound const&) const = default;
    };

    Segment(Scheduler& scheduler, std::uint64_t seed);

    /// A new host. The reference holds for the segment's life.
    Host& add_host(std::string_view name);
    /// The host of that name; std::out_of_range where there is none.
    [[nodiscard]] Host& host(std::string_view name);

    Faults faults;

    /// Cuts the segment: hosts of one set hear each other only; all others are one set more.
    void partition(std::initializer_list<std::initializer_list<std::string_view>> sides);
    void heal() { partition({}); }

    /// A datagram from a host that is no part of the office, to all or to one host.
    void inject(std::string_view bytes, int port = 4111);
    void inject_to(std::string_view name, std::string_view bytes, int port = 4111);

    /// Where a datagram goes, by address and port.
    struct Target {
        std::string_view address;
        int port;
    };
    void send(Host const& from, int from_port, Target to, std::string_view bytes);
    void note_bound(Host const& host, int port);

    /// Datagrams on their way.
    [[nodiscard]] std::size_t in_flight() const { return in_flight_; }

    // The record of what happened, since the last forget().
    [[nodiscard]] std::vector<Sent> const& sent() const { return sent_; }
    [[nodiscard]] std::vector<Bound> const& bound() const { return bound_; }
    /// The bytes of all datagrams, or of one host's.
    [[nodiscard]] std::vector<std::string> texts() const;
    [[nodiscard]] std::vector<std::string> texts_from(std::string_view host) const;
    void forget();
    /// The bytes of a datagram by its number, counted from the first one of all; std::out_of_range
    /// when it is forgotten.
    [[nodiscard]] std::string const& bytes_of(std::size_t number) const
    {
        return *sent_.at(number - forgotten_).bytes;
    }

private:
    /// Some hosts, one after the other, that get the newest datagram of the record in one moment.
    /// An event for each of them would do the same, and cost a crowd most of its time.
    struct Arrival {
        Duration moment;
        std::size_t number; ///< the datagram's
        int port;
        Payload bytes;
        struct Receiver {
            Host* host;
            unsigned binding;
        };
        std::vector<Receiver> receivers;
    };

    void deliver(Host& to, unsigned binding);
    void schedule(Host& to, unsigned binding);
    void plan_arrivals();
    void arrive(Arrival const& arrival);

    Scheduler& scheduler_;
    Chance chance_;
    std::deque<Host> hosts_;
    std::vector<Sent> sent_;
    std::size_t forgotten_ = 0;
    std::vector<Bound> bound_;
    std::vector<Arrival> planned_; ///< of the newest datagram
    std::size_t in_flight_ = 0;
};

} // namespace sim
