#include "text/saved_page.h"

#include "text/fields.h"

namespace text {

SavedPage::SavedPage()
{
    line("");
    line("Vexlo Instant Messaging");
    line("");
    rule();
}

void SavedPage::line(std::string_view words)
{
    text_.append(words).append(line_end);
}

void SavedPage::rule()
{
    constexpr std::size_t hyphens = 60;
    line(std::string(hyphens, '-'));
}

std::string SavedPage::finished(std::string_view path)
{
    rule();
    line("");
    line("");
    line("Saved to:");
    line(path);
    line("");
    return text_;
}

} // namespace text
