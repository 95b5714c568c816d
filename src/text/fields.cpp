#include "text/fields.h"

#include <algorithm>

namespace text {

namespace {

constexpr std::string_view field_ends = ",\r\n";

} // namespace

std::string FieldReader::next()
{
    place_ = std::min(file_.find_first_not_of(' ', place_), file_.size());
    if (at_end()) {
        return {};
    }
    return file_[place_] == '"' ? quoted() : plain();
}

std::string FieldReader::quoted()
{
    auto const begin = place_ + 1;
    auto const end = std::min(file_.find('"', begin), file_.size());
    place_ = std::min(file_.find_first_of(field_ends, end), file_.size());
    pass_separator();
    return std::string(file_.substr(begin, end - begin));
}

std::string FieldReader::plain()
{
    auto const begin = place_;
    place_ = std::min(file_.find_first_of(field_ends, begin), file_.size());
    auto const end = place_;
    pass_separator();
    return std::string(file_.substr(begin, end - begin));
}

void FieldReader::pass_separator()
{
    if (file_.substr(std::min(place_, file_.size())).starts_with(line_end)) {
        place_ += line_end.size();
    } else if (!at_end()) {
        ++place_;
    }
}

} // namespace text
