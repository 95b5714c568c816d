#pragma once

#include <string>
#include <string_view>

namespace text {

/// A text that a person saves: a head with the program's name, lines and rules, and a foot with the
/// path that it is saved to.
class SavedPage {
public:
    SavedPage();

    void line(std::string_view words);
    void rule();
    /// The whole text; the page has its foot then.
    [[nodiscard]] std::string finished(std::string_view path);

private:
    std::string text_;
};

} // namespace text
