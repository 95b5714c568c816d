#pragma once

#include "bench/capacity/scene.h"
#include "sim/office.h"

#include <vector>

namespace capacity {

/// The crowd itself: complete programs in a simulated office.
class Crowd : public Scene {
public:
    /// `setup` is that of every host but for its directory.
    explicit Crowd(Terms const& terms, sim::Setup setup = {});

    [[nodiscard]] sim::Duration now() const override { return office.scheduler.now(); }
    void run_for(sim::Duration time) override { office.run_for(time); }
    void start_at(sim::Duration moment, int number) override;
    void find_others_after(sim::Duration delay, int number) override;
    void meet() override;
    void set_count(int number, int ticks) override;

    [[nodiscard]] std::vector<std::size_t> queues() override;
    [[nodiscard]] std::vector<int> lists() override;
    [[nodiscard]] int complete_directories() override;
    [[nodiscard]] bool quiet() override;
    [[nodiscard]] Sent sent() override;

    [[nodiscard]] sim::Peer& peer(int number)
    {
        return office.peers().at(static_cast<std::size_t>(number));
    }
    /// Messages that have reached somebody's screen, with the sound on.
    [[nodiscard]] std::size_t shown();

    sim::Office office;

private:
    [[nodiscard]] bool has_full_file(std::size_t number);

    std::vector<bool> full_files_; ///< a row never leaves the file again
};

} // namespace capacity
