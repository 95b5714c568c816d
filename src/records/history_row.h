#pragma once

#include "controls/table.h"
#include "text/dates.h"

#include <string_view>

namespace records {

/// A message in the history, from column 2 on. What a kind of row does not have stays empty.
struct HistoryRow {
    std::string_view kind;      ///< "From", "To", "Replied to" or "Auto Rep to"
    std::string_view party;     ///< who wrote it, or whom it was written to
    std::string_view head = {}; ///< the sender's part of the body, through its ">"
    std::string_view main_text; ///< the rest of the body
    std::string_view recipient = {};
    std::string_view answer = {}; ///< what was answered; in a "To" row its `recalltab`
    std::string_view recallindex = {};
    std::string_view caption = {}; ///< of the window that recalls the message
};

/// Adds the row with the moment `now` in front, visible and selected.
void add_row(controls::Table& history, text::LocalTime now, HistoryRow const& row);

} // namespace records
