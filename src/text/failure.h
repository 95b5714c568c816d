#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace text {

/// The text of a bind whose port is taken. The flows compare it, and peers' users read it.
inline constexpr std::string_view address_in_use = "Address in use";
/// The text of a send or bind where there is no network.
inline constexpr std::string_view no_route_to_host = "No route to host.";

/// What the world refuses: a file, a socket, a conversion. Carries the text that the flows compare,
/// the number that boxes show, and the operation it came from.
class Failure : public std::exception {
public:
    Failure(std::string_view message, int code, std::string source)
        : text(message), number(code), origin(std::move(source))
    {
    }

    [[nodiscard]] char const* what() const noexcept override { return text.c_str(); }

    std::string text;
    int number;
    std::string origin;
};

/// Runs one step; a Failure in it skips the rest of that step. Returns whether the step ran to its
/// end.
template <typename Step>
bool attempt(Step&& step)
{
    try {
        std::forward<Step>(step)();
        return true;
    } catch (Failure const&) {
        return false;
    }
}

} // namespace text
