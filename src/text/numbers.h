#pragma once

#include <string>
#include <string_view>

namespace text {

/// The leading number of a text, else 0: `4200x` gives 4200 and `abc` gives 0.
[[nodiscard]] double leading_number(std::string_view words);

/// The leading number, rounded to a whole 32-bit number. Raises a Failure ("Overflow", 6) where it
/// does not fit.
[[nodiscard]] int leading_whole_number(std::string_view words);

/// The leading number as it would be written: `04111` gives "4111" and `abc` gives "0". Raises a
/// Failure ("Overflow", 6) where it does not fit.
[[nodiscard]] std::string leading_decimal(std::string_view words);

/// The leading number in single precision. Raises a Failure ("Overflow", 6) where it does not fit.
[[nodiscard]] float leading_single(std::string_view words);

/// The whole value of a flag's text. Raises a Failure ("Type mismatch", 13) when the text, blanks
/// aside, is no number.
[[nodiscard]] int flag_value(std::string_view words);

/// A single-precision number in plain decimal text: no exponent, no trailing zeros.
[[nodiscard]] std::string plain_decimal(float number);

} // namespace text
