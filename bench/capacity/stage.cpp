#include "bench/capacity/stage.h"

#include "bench/capacity/crowd.h"
#include "bench/capacity/model.h"

#include <stdexcept>

namespace capacity {

std::unique_ptr<Scene> open_stage(Arguments const& told, Terms const& terms)
{
    auto const play = told.text("play", "programs");
    if (play == "model") {
        return std::make_unique<Model>(terms);
    }
    if (play != "programs") {
        throw std::invalid_argument("play is programs or model");
    }
    return std::make_unique<Crowd>(terms, sim::Setup{.settings = {{"PLAYSOUND", "0"}}});
}

} // namespace capacity
