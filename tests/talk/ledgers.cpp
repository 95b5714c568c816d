#include "tests/talk/ledgers.h"

#include "text/fields.h"

#include <algorithm>
#include <array>
#include <utility>

namespace talk {

namespace {

constexpr std::size_t most_log_rows = 301;
constexpr std::size_t most_history_rows = 100;

/// "11-15-26:03:15p:".
bool has_stamp(std::string_view line)
{
    constexpr std::string_view shape = "00-00-00:00:00x:";
    if (line.size() < shape.size()) {
        return false;
    }
    for (std::size_t place = 0; place < shape.size(); ++place) {
        char const letter = line[place];
        bool const fits = shape[place] == '0'   ? letter >= '0' && letter <= '9'
                          : shape[place] == 'x' ? letter == 'a' || letter == 'p'
                                                : letter == shape[place];
        if (!fits) {
            return false;
        }
    }
    return true;
}

std::string trimmed(std::string const& words)
{
    auto const begin = words.find_first_not_of(' ');
    return begin == std::string::npos
               ? std::string()
               : words.substr(begin, words.find_last_not_of(' ') - begin + 1);
}

/// A row as a save and a load leave it. Without a head a received text loses a letter each time.
Row reread(Row row)
{
    auto const stored = trimmed(row[4] + " " + trimmed(row[5]));
    row[5] = row[2] == "To" ? stored : stored.substr(std::min(stored.size(), row[4].size() + 1));
    return row;
}

} // namespace

Texts unstamped_lines(std::string_view content)
{
    constexpr std::size_t stamp = 16;
    Texts lines;
    while (!content.empty()) {
        auto const end = std::min(content.find("\r\n"), content.size());
        auto const line = content.substr(0, end);
        lines.emplace_back(line.substr(has_stamp(line) ? stamp : 0));
        content.remove_prefix(std::min(content.size(), end + 2));
    }
    return lines;
}

void LogLedger::start()
{
    if (std::exchange(mirrored_, false)) {
        Texts lines{"Vexlo IM shutdown correctly.\t\r\n---"};
        for (std::string const& row : std::exchange(rows_, {})) {
            text::for_each_line(row, [&](std::string_view line) { lines.emplace_back(line); });
        }
        rows_ = std::move(lines);
    }
    add("Vexlo IM.\t\r\n---");
    clean();
}

void LogLedger::clean()
{
    mirrored_ = rows_.size() <= most_log_rows;
    if (!mirrored_) {
        finish();
    }
}

void LogLedger::close()
{
    add("Vexlo IM Closed.\t\r\n---");
    finish();
    mirrored_ = false;
}

void LogLedger::finish()
{
    for (std::string const& row : std::exchange(rows_, {})) {
        finished_.append(row).append("\r\n");
    }
}

Texts LogLedger::lines() const
{
    std::string content = finished_;
    for (std::string const& row : rows_) {
        content.append(row).append("\r\n");
    }
    return unstamped_lines(content);
}

void HistoryLedger::load()
{
    rows_.clear();
    for (Row const& row : file_.value_or(std::vector<Row>{})) {
        rows_.push_back(reread(row));
    }
}

void HistoryLedger::add(Entry const& entry)
{
    Row row;
    row[2] = entry.kind;
    row[3] = entry.party;
    row[4] = entry.head;
    row[5] = entry.main_text;
    row[6] = entry.recipient;
    row[7] = entry.seventh;
    row[8] = entry.eighth;
    rows_.push_back(row);
    if (entry.kind != "To") {
        trim(); // A "To" row shows itself without a trim.
    }
}

void HistoryLedger::save()
{
    if (!rows_.empty()) {
        trim();
        file_ = rows_;
    }
}

void HistoryLedger::trim()
{
    auto const most = std::min(rows_.size(), most_history_rows);
    rows_.erase(rows_.begin(), rows_.end() - static_cast<std::ptrdiff_t>(most));
}

std::vector<Row> untimed_rows(controls::Table const& history)
{
    std::vector<Row> rows;
    for (int number = 1; number <= history.count(); ++number) {
        auto row = history.row(number);
        for (std::size_t const time : {0U, 1U, 9U}) {
            row[time].clear();
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace talk
