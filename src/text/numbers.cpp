#include "text/numbers.h"

#include "text/failure.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace text {

namespace {

std::string_view without_leading_blanks(std::string_view words)
{
    auto const begin = words.find_first_not_of(' ');
    return begin == std::string_view::npos ? std::string_view{} : words.substr(begin);
}

bool begins_like_a_number(std::string_view words)
{
    // The conversion also knows words such as "inf"; a person's number begins with a digit, a point
    // or a sign.
    auto const digits = words.substr(words.starts_with('-') ? 1 : 0);
    return !digits.empty() && (digits[0] == '.' || (digits[0] >= '0' && digits[0] <= '9'));
}

struct Leading {
    double number;
    std::string_view rest;
};

std::optional<Leading> leading(std::string_view words)
{
    words = without_leading_blanks(words);
    if (words.starts_with('+') && !words.starts_with("+-")) {
        words.remove_prefix(1);
    }
    if (!begins_like_a_number(words)) {
        return std::nullopt;
    }
    double number = 0;
    auto const [end, error] = std::from_chars(words.data(), words.data() + words.size(), number);
    if (error == std::errc::result_out_of_range) {
        // Too large, or too small to be anything but 0.
        auto const digits = words.substr(0, static_cast<std::size_t>(end - words.data()));
        bool const small = digits.find("e-") != std::string_view::npos ||
                           digits.find("E-") != std::string_view::npos;
        return Leading{small ? 0 : std::numeric_limits<double>::infinity(),
                       words.substr(digits.size())};
    }
    if (error != std::errc{}) {
        return std::nullopt;
    }
    return Leading{number, words.substr(static_cast<std::size_t>(end - words.data()))};
}

void refuse_outside(double number, double smallest, double largest)
{
    if (!(number >= smallest && number <= largest)) {
        throw Failure("Overflow", 6, "number");
    }
}

int whole(double number, double smallest, double largest)
{
    double const rounded = std::nearbyint(number);
    refuse_outside(rounded, smallest, largest);
    return static_cast<int>(rounded);
}

/// All digits of a number, without an exponent.
template <typename Number>
std::string fixed_text(Number number)
{
    std::array<char, 400> digits{};
    auto const [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                            std::chars_format::fixed);
    return error == std::errc{} ? std::string(digits.data(), end) : "0";
}

} // namespace

double leading_number(std::string_view words)
{
    auto const found = leading(words);
    return found ? found->number : 0;
}

int leading_whole_number(std::string_view words)
{
    return whole(leading_number(words), std::numeric_limits<int>::min(),
                 std::numeric_limits<int>::max());
}

std::string leading_decimal(std::string_view words)
{
    constexpr double largest = std::numeric_limits<double>::max();
    double const number = leading_number(words);
    refuse_outside(number, -largest, largest);
    return number == 0 ? "0" : fixed_text(number); // There is no minus in front of nothing.
}

float leading_single(std::string_view words)
{
    constexpr auto largest = static_cast<double>(std::numeric_limits<float>::max());
    double const number = leading_number(words);
    refuse_outside(number, -largest, largest);
    return static_cast<float>(number);
}

int flag_value(std::string_view words)
{
    auto const found = leading(words);
    if (!found || !without_leading_blanks(found->rest).empty()) {
        throw Failure("Type mismatch", 13, "flag");
    }
    return whole(found->number, std::numeric_limits<short>::min(),
                 std::numeric_limits<short>::max());
}

std::string plain_decimal(float number)
{
    return fixed_text(number);
}

} // namespace text
