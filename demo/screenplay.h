#pragma once

#include "demo/stage.h"

#include <span>

namespace demo {

/// One scene of the story. It raises NotAsTold where something does not come about.
struct Scene {
    char const* title;
    void (*play)(Stage& stage);
};

/// Who is at work before the story begins.
void open_office(Stage& stage);

/// The scenes, in their order: each begins where the one before has ended.
[[nodiscard]] std::span<Scene const> screenplay();

} // namespace demo
