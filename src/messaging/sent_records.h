#pragma once

#include "forms/others.h"
#include "platform/clock.h"
#include "text/character_set.h"

#include <string>
#include <string_view>

namespace messaging {

/// What is kept of a message that was sent: a log row and a history row.
class SentRecords {
public:
    SentRecords(forms::Log& log, forms::HistoryFrm& historyfrm, platform::Clock const& clock,
                text::CharacterSet const& letters);

    /// `word` is "Msg to   " or "Fwd to   "; the target stands in upper case.
    void log_row(std::string_view word, std::string_view target, std::string_view text);

    struct Sent {
        std::string_view target;
        std::string_view text;
        std::string_view recalltab;
        std::string_view recallindex;
    };

    /// A "To" row; it shows itself without a trim of the list.
    void history_row(Sent const& sent);

    /// A "Replied to" row, with the message that was answered and the answer.
    void reply_row(std::string_view target, std::string_view message, std::string_view reply);

private:
    forms::Log& log_;
    forms::HistoryFrm& historyfrm_;
    platform::Clock const& clock_;
    text::CharacterSet const& letters_;
};

} // namespace messaging
