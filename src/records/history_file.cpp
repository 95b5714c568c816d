#include "records/history_file.h"

#include "text/failure.h"
#include "text/fields.h"
#include "text/numbers.h"

#include <algorithm>
#include <cstddef>

namespace records::history_file {

namespace {

constexpr char quote = '"';
/// Stands for a double quote in the message column; old files hold it.
constexpr char quote_mark = '\x04';
constexpr std::size_t kind = 2;
constexpr std::size_t head = 4;
constexpr std::size_t main_text = 5;

/// Without blanks at both ends; other white space stays.
std::string_view trimmed(std::string_view words)
{
    auto const begin = words.find_first_not_of(' ');
    if (begin == std::string_view::npos) {
        return {};
    }
    return words.substr(begin, words.find_last_not_of(' ') - begin + 1);
}

/// Replaces a character from `begin` on. It looks for the next one each time, since there are few.
void replace(std::string& words, std::size_t begin, char from, char to)
{
    for (auto place = words.find(from, begin); place != std::string::npos;
         place = words.find(from, place + 1)) {
        words[place] = to;
    }
}

void store_main(std::string& file, controls::Table::Row const& row)
{
    // No kind is called "to" in small letters, so the head always goes in front.
    if (row[kind] != "to") {
        file.append(row[head]).append(1, ' ');
    }
    auto const begin = file.size();
    file += trimmed(row[main_text]);
    replace(file, begin, quote, quote_mark);
}

std::string restored_main(std::string_view stored, controls::Table::Row const& row)
{
    auto words = trimmed(stored);
    if (row[kind] != "To") {
        // The head and its blank come off by their length. Without a head that is a letter of the
        // text, one more each time; where the trim has left less than that, nothing is left.
        words.remove_prefix(std::min(words.size(), row[head].size() + 1));
    }
    std::string whole(words);
    replace(whole, 0, quote_mark, quote);
    return whole;
}

/// As many characters as the rows take at most.
std::size_t size_of(controls::Table const& table)
{
    constexpr std::size_t marks = 3; // a field's quotes and its comma, or half of the row's end
    std::size_t size = 0;
    for (int number = 1; number <= table.count(); ++number) {
        auto const& row = table.row(number);
        for (std::string const& column : row) {
            size += column.size() + marks;
        }
        size += row[head].size() + marks;
    }
    return size;
}

[[noreturn]] void refuse_end()
{
    throw text::Failure("Input past end of file", 62, "history");
}

} // namespace

std::string written(controls::Table const& table, Options options)
{
    constexpr std::size_t frame = 64;
    std::string file;
    file.reserve(size_of(table) + frame);
    file += " " + std::to_string(table.count()) + " ";
    file += text::line_end;
    file += std::to_string(options.ontop) + "," + std::to_string(options.minmain) + "," +
            std::to_string(options.anchor);
    file += text::line_end;
    for (int number = 1; number <= table.count(); ++number) {
        auto const& row = table.row(number);
        for (std::size_t column = 0; column < row.size(); ++column) {
            file += column == 0 ? "\"" : ",\"";
            if (column == main_text) {
                store_main(file, row);
            } else {
                file += row[column];
            }
            file += quote;
        }
        file += text::line_end;
    }
    file += "--END--";
    file += text::line_end;
    file += text::line_end;
    return file;
}

std::string_view Reader::line()
{
    if (place_ >= file_.size()) {
        refuse_end();
    }
    auto const end = std::min(file_.find_first_of(text::line_end, place_), file_.size());
    auto const found = file_.substr(place_, end - place_);
    place_ = std::min(end + (file_.substr(end).starts_with(text::line_end) ? 2 : 1), file_.size());
    return found;
}

int Reader::count()
{
    return text::leading_whole_number(line());
}

Options Reader::options()
{
    auto const values = line();
    text::FieldReader fields(values);
    Options options;
    options.ontop = text::flag_value(fields.next());
    options.minmain = text::flag_value(fields.next());
    options.anchor = text::flag_value(fields.next());
    return options;
}

controls::Table::Row Reader::row()
{
    controls::Table::Row row;
    for (std::size_t column = 0; column < row.size(); ++column) {
        auto const words = field(column + 1 == row.size());
        row[column] = column == main_text ? restored_main(words, row) : std::string(words);
    }
    return row;
}

std::string_view Reader::field(bool last)
{
    if (place_ >= file_.size()) {
        refuse_end();
    }
    if (file_[place_] != quote) {
        throw text::Failure("Bad file format", 62, "history");
    }
    auto const begin = place_ + 1;
    // A quote in a field's text is written as it stands. Only one that a comma and a quote follow,
    // or a line end behind the last field, is the field's end: a reply with a quote in it must not
    // cost the history.
    std::string_view const closing = last ? "\"\r\n" : "\",\"";
    auto const end = file_.find(closing, begin);
    if (end == std::string_view::npos) {
        refuse_end();
    }
    place_ = end + (last ? closing.size() : 2);
    return file_.substr(begin, end - begin);
}

} // namespace records::history_file
