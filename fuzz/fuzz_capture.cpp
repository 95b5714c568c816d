#include "tap/capture.h"

#include "fuzz/check.h"
#include "fuzz/target.h"
#include "text/failure.h"

#include <algorithm>

namespace {

using fuzz::check;

std::string file_of(std::vector<tap::Datagram> const& datagrams)
{
    auto file = std::string(tap::capture::head) + "\n";
    for (auto const& each : datagrams) {
        file += tap::capture::line(each);
    }
    return file;
}

bool is_plain(std::string_view file)
{
    return std::ranges::all_of(
        file, [](char letter) { return letter == '\n' || (letter >= ' ' && letter <= '~'); });
}

/// What is refused is refused with a line of the file and words; what is read is written as plain
/// text that reads the same.
void check_capture(std::string_view file)
{
    try {
        auto const datagrams = tap::capture::read(file);
        auto const written = file_of(datagrams);
        check(is_plain(written), "a capture is plain text");
        check(tap::capture::read(written) == datagrams, "a capture reads as it was written");
    } catch (text::Failure const& failure) {
        auto const lines = 1 + std::ranges::count_if(file, [](char letter) {
                               return letter == '\n' || letter == '\r';
                           });
        check(failure.number >= 1 && failure.number <= lines, "a bad line is a line of the file");
        check(failure.text.starts_with("line " + std::to_string(failure.number) + ": "),
              "a bad line is told");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    check_capture(fuzz::as_text(bytes, size));
    return 0;
}
