#include "desktop/version.h"

#include "text/failure.h"
#include "text/numbers.h"

namespace desktop {

Version parse_version(std::string_view text)
{
    auto const first = text.find('.');
    auto const second = first == std::string_view::npos ? first : text.find('.', first + 1);
    if (second == std::string_view::npos) {
        throw text::Failure("Invalid procedure call or argument", 5, "version");
    }
    return {.major = text::leading_number(text.substr(0, first)),
            .minor = text::leading_number(text.substr(first + 1, second - first - 1)),
            .revision = text::leading_number(text.substr(second + 1))};
}

std::string version_text(Version const& version)
{
    return std::to_string(static_cast<int>(version.major)) + "." +
           std::to_string(static_cast<int>(version.minor)) + "." +
           std::to_string(static_cast<int>(version.revision));
}

} // namespace desktop
