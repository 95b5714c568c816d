#pragma once

#include <string>
#include <string_view>

namespace fuzz {

/// Several texts in one input. Each ends at a backslash with any other character behind it; two
/// backslashes stand for one. So bytes that the fuzzer puts in or takes away change one text only.
class Pieces {
public:
    /// `input` must outlive the pieces.
    explicit Pieces(std::string_view input) : input_(input) {}

    [[nodiscard]] bool empty() const { return place_ >= input_.size(); }

    /// The next text; empty at the end.
    std::string next();

private:
    std::string_view input_;
    std::string_view::size_type place_ = 0;
};

/// A text as a piece, with its end.
[[nodiscard]] std::string piece(std::string_view text);

} // namespace fuzz
