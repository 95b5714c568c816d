#pragma once

#include <string>

namespace text {

/// A moment on the office's wall clock.
struct LocalTime {
    int year = 2026;
    int month = 1; ///< 1 to 12
    int day = 1;   ///< 1 to 31
    int hour = 0;  ///< 0 to 23
    int minute = 0;
    int second = 0;

    auto operator<=>(LocalTime const&) const = default;
};

/// Sixteen characters, the head of every log row: "11-15-26:03:15p:".
[[nodiscard]] std::string log_stamp(LocalTime now);

/// "yymmddhhnnss", the stamp of popups and file names: "261115151802".
[[nodiscard]] std::string file_stamp(LocalTime now);

/// "yyyymmddhhnnss", the index of a history row.
[[nodiscard]] std::string history_stamp(LocalTime now);

/// "mm/dd/yy hh:mm am/pm", the date of a history row: "11/15/26 03:18 pm".
[[nodiscard]] std::string history_date(LocalTime now);

/// "hh:mm am/pm", the time in captions: "03:18 pm".
[[nodiscard]] std::string caption_time(LocalTime now);

/// "ddd mmm d, yyyy", the date in saved texts: "Sun Nov 15, 2026".
[[nodiscard]] std::string long_date(LocalTime now);

/// "h:nn am/pm", the time in saved logs: "3:18 pm".
[[nodiscard]] std::string short_time(LocalTime now);

} // namespace text
