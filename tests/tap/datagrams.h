#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Datagrams of every kind, sensible and not, for a program that is ALICE MEYER at ROOM12.
namespace datagrams {

using Datagrams = std::vector<std::string>;

/// Written by hand: at least one for each thing that a program does with one.
[[nodiscard]] Datagrams hand_picked();

/// Those that the fuzz targets start from.
[[nodiscard]] Datagrams of_the_corpora();

/// The given ones, taken apart and put together anew by a seed.
[[nodiscard]] Datagrams mutated(Datagrams const& seeds, std::size_t count, std::uint64_t seed);

} // namespace datagrams
