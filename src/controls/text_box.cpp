#include "controls/text_box.h"

namespace controls {

void RichText::paint(Run run)
{
    run.start = std::min(run.start, text_.size());
    run.length = std::min(run.length, text_.size() - run.start);
    if (run.length == 0) {
        return;
    }
    auto const end = run.start + run.length;
    std::vector<Run> painted;
    for (Run const& old : runs_) {
        auto const old_end = old.start + old.length;
        if (old.start < run.start) {
            painted.push_back({old.start, std::min(old_end, run.start) - old.start, old.colour});
        }
        if (old_end > end) {
            auto const begin = std::max(old.start, end);
            painted.push_back({begin, old_end - begin, old.colour});
        }
    }
    painted.push_back(run);
    std::ranges::sort(painted, {}, &Run::start);
    runs_ = std::move(painted);
}

void RichText::paint_over(Colour ground, std::vector<text::Span> const& stretches, Colour colour)
{
    std::vector<Run> painted;
    std::size_t place = 0;
    for (text::Span const& stretch : stretches) {
        if (stretch.start > place) {
            painted.push_back({place, stretch.start - place, ground});
        }
        painted.push_back({stretch.start, stretch.length, colour});
        place = stretch.start + stretch.length;
    }
    if (place < text_.size()) {
        painted.push_back({place, text_.size() - place, ground});
    }
    runs_ = std::move(painted);
}

} // namespace controls
