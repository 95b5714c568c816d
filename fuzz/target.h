#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What the fuzzer calls with each input.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size);

namespace fuzz {

/// The input as the text that the program would meet.
inline std::string_view as_text(std::uint8_t const* bytes, std::size_t size)
{
    return {reinterpret_cast<char const*>(bytes), size};
}

} // namespace fuzz
