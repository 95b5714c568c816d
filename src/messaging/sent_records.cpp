#include "messaging/sent_records.h"

#include "network/wire.h"

#include <utility>

namespace messaging {

SentRecords::SentRecords(forms::Log& log, forms::HistoryFrm& historyfrm,
                         platform::Clock const& clock, text::CharacterSet const& letters)
    : log_(log), historyfrm_(historyfrm), clock_(clock), letters_(letters)
{
}

void SentRecords::log_row(std::string_view word, std::string_view target, std::string_view text)
{
    auto row = text::log_stamp(clock_.now());
    row.append(word).append(letters_.upper(target)).append("\t\r\n").append(text).append("\r\n---");
    log_.lstMessages.add(row);
}

void SentRecords::history_row(Sent const& sent)
{
    auto const now = clock_.now();
    controls::Table::Row row;
    row[0] = text::history_stamp(now);
    row[1] = text::history_date(now);
    row[2] = "To";
    row[3] = sent.target;
    row[5] = sent.text;
    row[7] = sent.recalltab;
    row[8] = sent.recallindex;
    historyfrm_.ListView1.add(std::move(row));
    show_last_row();
    historyfrm_.showrow.run();
}

void SentRecords::reply_row(std::string_view target, std::string_view message,
                            std::string_view reply)
{
    auto const now = clock_.now();
    auto const answered = network::wire::split_body(message);
    controls::Table::Row row;
    row[0] = text::history_stamp(now);
    row[1] = text::history_date(now);
    row[2] = "Replied to";
    row[3] = target;
    row[4] = answered.head;
    row[5] = answered.main;
    row[6] = target;
    row[7] = reply;
    row[9] = std::string(target) + " Msg " + text::caption_time(now);
    historyfrm_.ListView1.add(std::move(row));
    show_last_row();
    historyfrm_.historyrefresh.run();
}

void SentRecords::show_last_row()
{
    historyfrm_.ListView1.show(historyfrm_.ListView1.count());
}

} // namespace messaging
