#include "messaging/sent_records.h"

#include "network/wire.h"
#include "records/history_row.h"

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
    records::add_row(historyfrm_.ListView1, clock_.now(),
                     {.kind = "To",
                      .party = sent.target,
                      .main_text = sent.text,
                      .answer = sent.recalltab,
                      .recallindex = sent.recallindex});
    historyfrm_.showrow.run();
}

void SentRecords::reply_row(std::string_view target, std::string_view message,
                            std::string_view reply)
{
    auto const now = clock_.now();
    auto const answered = network::wire::split_body(message);
    records::add_row(historyfrm_.ListView1, now,
                     {.kind = "Replied to",
                      .party = target,
                      .head = answered.head,
                      .main_text = answered.main,
                      .recipient = target,
                      .answer = reply,
                      .caption = std::string(target) + " Msg " + text::caption_time(now)});
    historyfrm_.historyrefresh.run();
}

} // namespace messaging
