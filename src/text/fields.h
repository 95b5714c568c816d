#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

/// Carriage return and line feed: the line end of every file, datagram and text box.
inline constexpr std::string_view line_end = "\r\n";

/// Reads a file's text field by field. A field ends at a comma or at the line end, leading blanks
/// are skipped, and a field that begins with a double quote runs to the next double quote. So a
/// comma cuts a plain value: what stands behind it is a field of its own.
class FieldReader {
public:
    /// `file` must outlive the reader.
    explicit FieldReader(std::string_view file) : file_(file) {}

    [[nodiscard]] bool at_end() const { return place_ >= file_.size(); }

    /// The next field; empty at the end of the file.
    std::string next();

private:
    std::string quoted();
    std::string plain();
    void pass_separator();

    std::string_view file_;
    std::size_t place_ = 0;
};

/// Calls `take` with each line of `file`, without its line end. A last line without a line end
/// counts too.
template <typename Take>
void for_each_line(std::string_view file, Take&& take)
{
    while (!file.empty()) {
        auto const end = file.find_first_of(line_end);
        take(file.substr(0, end));
        if (end == std::string_view::npos) {
            return;
        }
        file.remove_prefix(end + (file.substr(end).starts_with(line_end) ? 2 : 1));
    }
}

} // namespace text
