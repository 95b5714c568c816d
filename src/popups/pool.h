#pragma once

#include "forms/forms.h"
#include "platform/clock.h"

#include <string_view>

namespace popups {

/// The pool of ten message windows: which one a new message takes, and how it gives its place back.
class Pool {
public:
    Pool(forms::Forms& forms, platform::Clock const& clock);

    /// Fills both slot tables as ten free slots, and counts them.
    void start();

    struct Arrival {
        std::string_view sender;    ///< the name to show, any case
        std::string_view recipient; ///< the datagram's recipient field
        std::string_view text;      ///< the whole body
    };

    /// Shows a message in the lowest free slot, or in the one whose message is the oldest. A step
    /// that fails is skipped.
    void open(Arrival const& message);

    /// Gives slot `slot` back; whatever fails in it is ignored.
    void freepopupslot(std::string_view slot);

    /// Counts the free slots into `pucount`, one change at a time.
    void recountpopups();

    /// Closes all popups at once; the recall window keeps its text.
    void dissmissall();

    /// Shows the recall window again, if it holds a message.
    void recall();

private:
    [[nodiscard]] int take_slot();
    void fill(forms::Popup& popup, int slot, Arrival const& message);
    void refill_tables();
    void show_tray();

    forms::Forms& forms_;
    platform::Clock const& clock_;
};

} // namespace popups
