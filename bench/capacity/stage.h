#pragma once

#include "bench/capacity/arguments.h"
#include "bench/capacity/scene.h"

#include <cstdint>
#include <memory>

namespace capacity {

[[nodiscard]] inline std::uint64_t seed_of(Arguments const& told)
{
    return static_cast<std::uint64_t>(told.count("seed", 1));
}

/// The crowd of complete programs, or with `play=model` the model of it.
[[nodiscard]] std::unique_ptr<Scene> open_stage(Arguments const& told, Terms const& terms);

} // namespace capacity
