#pragma once

#include "controls/table.h"
#include "tests/talk/talk.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a program's files must hold, kept beside the program by whoever knows what happened to it.
namespace talk {

/// The files as lines, without the stamps of their rows.
[[nodiscard]] Texts unstamped_lines(std::string_view content);

/// The logs of all runs of one program.
class LogLedger {
public:
    /// A run begins: it finds what a crash has left.
    void start();
    /// A row, without its stamp.
    void add(std::string_view row) { rows_.emplace_back(row); }
    /// The log is brought to the disk, and begins anew when it is long.
    void clean();
    /// The run ends the proper way.
    void close();

    /// The lines of all files, the finished ones first.
    [[nodiscard]] Texts lines() const;
    /// Whether there is a file that goes along with the present log.
    [[nodiscard]] bool mirrored() const { return mirrored_; }

private:
    void finish();

    std::string finished_;
    Texts rows_;
    bool mirrored_ = false;
};

/// The history of one program, without times.
class HistoryLedger {
public:
    /// What a row says of its message; all else of a row is empty or a time.
    struct Entry {
        std::string_view kind, party, head, main_text, recipient, seventh, eighth;
    };

    /// A run begins: it reads the file, and what a crash has lost stays lost.
    void load();
    void add(Entry const& entry);
    /// The run ends the proper way.
    void save();

    [[nodiscard]] std::vector<Row> const& rows() const { return rows_; }

private:
    void trim();

    std::vector<Row> rows_;
    std::optional<std::vector<Row>> file_;
};

/// A program's history without its times, to be held against a ledger.
[[nodiscard]] std::vector<Row> untimed_rows(controls::Table const& history);

} // namespace talk
