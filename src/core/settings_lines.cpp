#include "core/settings_lines.h"

#include "text/fields.h"

namespace core::settings_lines {

std::string key_line(std::string_view key)
{
    constexpr std::size_t key_width = 20;
    std::string line = "[" + std::string(key);
    line.resize(1 + key_width, ' ');
    return line + "]=";
}

void Writer::line(std::string_view text)
{
    text_.append(text).append(text::line_end);
}

void Writer::entry(std::string_view key, std::string_view value)
{
    line(key_line(key).append(value));
}

} // namespace core::settings_lines
