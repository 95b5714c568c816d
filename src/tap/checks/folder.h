#pragma once

#include "tap/finding.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tap {

/// The program folder, in which the messenger keeps its files.
struct ProgramFolder {
    std::string path = {};
    bool exists = false;
    bool has_program = false;
    bool writable = false;
    std::vector<std::string> unreadable =
        {}; ///< files of the messenger's that are there all the same
    std::vector<std::string> unwritable = {};
    std::uint64_t free_bytes = 0;
};

[[nodiscard]] Finding check_folder(ProgramFolder const& folder);

/// Who this desk is to the others.
struct Name {
    std::string computer = {};
    std::string user = {};
    std::string display = {};
};

[[nodiscard]] Finding check_name(Name const& name);

} // namespace tap
