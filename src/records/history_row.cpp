#include "records/history_row.h"

#include <string>

namespace records {

void add_row(controls::Table& history, text::LocalTime now, HistoryRow const& row)
{
    using std::string;
    history.add({text::history_stamp(now), text::history_date(now), string(row.kind),
                 string(row.party), string(row.head), string(row.main_text), string(row.recipient),
                 string(row.answer), string(row.recallindex), string(row.caption)});
    history.show(history.count());
}

} // namespace records
