#pragma once

#include "controls/table.h"

#include <string>
#include <string_view>

/// The form of `hist.dat`.
namespace records::history_file {

struct Options {
    int ontop = 0;
    int minmain = 0;
    int anchor = 0;
};

/// The whole file: a count between blanks, the options, the rows in quoted fields, the end mark, an
/// empty line.
[[nodiscard]] std::string written(controls::Table const& table, Options options);

/// Reads a file piece by piece. Anything that is not there, or not of the form, raises a Failure;
/// what was read before stays with the caller.
class Reader {
public:
    /// `file` must outlive the reader.
    explicit Reader(std::string_view file) : file_(file) {}

    /// The number of rows that the first line tells; nothing is laid out for them.
    [[nodiscard]] int count();
    [[nodiscard]] Options options();
    /// The next row, with column 5 as it was before it was written.
    [[nodiscard]] controls::Table::Row row();

private:
    [[nodiscard]] std::string_view line();
    [[nodiscard]] std::string_view field(bool last);

    std::string_view file_;
    std::size_t place_ = 0;
};

} // namespace records::history_file
