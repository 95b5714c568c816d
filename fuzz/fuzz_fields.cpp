#include "fuzz/check.h"
#include "fuzz/target.h"
#include "text/fields.h"

namespace {

using fuzz::check;

void read_fields(std::string_view file)
{
    std::size_t fields = 0;
    std::size_t characters = 0;
    for (text::FieldReader reader(file); !reader.at_end(); ++fields) {
        check(fields <= file.size(), "every field takes a character of the file");
        auto const field = reader.next();
        characters += field.size();
        bool const quoted = field.find_first_of(",\r\n") != std::string::npos;
        check(!quoted || file.find('"') != file.npos, "only quotes keep separators in a field");
        check(!field.starts_with(' ') || file.find('"') != file.npos, "leading blanks are skipped");
    }
    check(characters <= file.size(), "fields hold what stands in the file");
}

void read_lines(std::string_view file)
{
    std::size_t lines = 0;
    std::size_t characters = 0;
    text::for_each_line(file, [&](std::string_view line) {
        check(line.find_first_of(text::line_end) == line.npos, "a line holds no line end");
        characters += line.size();
        ++lines;
    });
    check(lines + characters <= 2 * file.size(), "every line takes a character of the file");
    check((lines == 0) == file.empty(), "only an empty file has no line");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    auto const file = fuzz::as_text(bytes, size);
    read_fields(file);
    read_lines(file);
    return 0;
}
