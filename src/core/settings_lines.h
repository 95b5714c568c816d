#pragma once

#include <string>
#include <string_view>

/// The lines of `settings.txt`.
namespace core::settings_lines {

/// Characters in front of the value: "[", the key filled with blanks to 20 characters, "]=".
inline constexpr std::size_t value_place = 23;

/// "[MY NAME             ]="
[[nodiscard]] std::string key_line(std::string_view key);

/// Collects lines; each ends in CR LF.
class Writer {
public:
    void line(std::string_view text);
    void entry(std::string_view key, std::string_view value);
    void entry(std::string_view key, int value) { entry(key, std::to_string(value)); }

    [[nodiscard]] std::string const& text() const { return text_; }

private:
    std::string text_;
};

} // namespace core::settings_lines
