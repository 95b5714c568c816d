#pragma once

#include "bench/capacity/arguments.h"

#include <ostream>

/// The experiments. Each is told what the office is like, plays it, and writes what it measured.
/// The same arguments give the same lines.
namespace capacity {

/// So many `people` start within `over` seconds, on their first `day` or on a usual one, or with
/// `newcomers` among those who know each other, who come first, last or at random (`order`). When
/// all is quiet, one person looks for the others, or `refresh=all` do, until all lists are
/// complete. Further: `loss`, `limit` in seconds, `seed`, and `play=model` for the model of it.
void start(Arguments const& told, std::ostream& out);

/// So many `people`, whose programs all look for the others every half hour, for so many `hours`;
/// with `option=0` they don't. `play=model` here, too.
void check(Arguments const& told, std::ostream& out);

/// What one message costs the segment, of each kind. With `replytoall=1` the option that makes
/// every reply to a message to all one to all is on.
void message(Arguments const& told, std::ostream& out);

/// How many of so many `messages` reach their people at a rate of `loss`.
void arrivals(Arguments const& told, std::ostream& out);

/// Everybody is away, the writer too as soon as the message to all has left.
void absence(Arguments const& told, std::ostream& out);

} // namespace capacity
