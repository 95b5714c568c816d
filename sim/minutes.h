#pragma once

#include "sim/office.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// What one program shows and sends, written down as it happens.
class Minutes {
public:
    struct Entry {
        Duration when{0};
        /// "popup", "status", "list", "log", "send", "box", "end".
        std::string_view what;
        std::string text;
    };
    using Take = std::function<void(Entry const&)>;

    /// What is there already is no news. All of them must outlive the minutes.
    Minutes(Office& office, Peer& peer, Take take);

    /// Runs the office up to `end`, and takes down each thing when it happens. Ends earlier once
    /// all is quiet behind `planned`, the moment of the last thing that is planned.
    void run(Duration planned, Duration end);

private:
    void look();
    void look_at_popups();
    void look_at_segment();
    void look_at_log();
    void look_at_boxes();
    void tell(std::string_view what, std::string_view text);
    void tell_change(std::string_view what, std::string& known, std::string const& present);
    [[nodiscard]] std::string list() const;

    Office& office_;
    Peer& peer_;
    Take take_;
    std::vector<std::string> stamps_; ///< of the popups that are open
    std::string status_;
    std::string list_;
    std::vector<std::string> log_;
    std::size_t sent_ = 0;
    std::size_t boxes_ = 0;
    bool running_ = false;
};

} // namespace sim
