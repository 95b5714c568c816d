#include "tap/read_only_files.h"

#include "text/failure.h"

namespace tap {

namespace {

[[noreturn]] void refuse()
{
    throw text::Failure("Permission denied", 70, "file");
}

} // namespace

void ReadOnlyFiles::write(std::string_view, std::string_view)
{
    refuse();
}

void ReadOnlyFiles::remove(std::string_view)
{
    refuse();
}

void ReadOnlyFiles::make_folder(std::string_view)
{
    refuse();
}

} // namespace tap
