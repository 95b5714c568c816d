#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

/// The rules of the house, as far as a reader of the tree can tell: which folder knows which, and
/// how long, how plain and how well listed the sources are.
namespace unit::house {

struct Source {
    std::string path; ///< below the project's folder: "src/text/fields.h"
    std::vector<std::string> lines;
};

/// Each begins with path, ":", line number, ": ".
using Complaints = std::vector<std::string>;
using Rule = std::function<Complaints(Source const&)>;

inline constexpr std::size_t longest_file = 500;
inline constexpr std::size_t longest_function = 60;

/// All C++ sources of the project, by path.
[[nodiscard]] std::vector<Source> sources_of(std::filesystem::path const& project);

/// The sources that a CMakeLists.txt names; where a loop there makes "${word}.cpp" of words, each
/// word names one.
[[nodiscard]] std::set<std::string> names_listed_by(std::string const& list);

/// The paths, below the project's folder, of all sources that any CMakeLists.txt names.
[[nodiscard]] std::set<std::string> listed_in(std::filesystem::path const& project);

/// A folder of the program includes itself and what stands below it, by the folder's name.
[[nodiscard]] Complaints includes_only_below(Source const& source);

/// Qt stays under the roof.
[[nodiscard]] Complaints keeps_qt_out(Source const& source);

/// Below the roof nobody reads files, clocks or the network without asking the platform.
[[nodiscard]] Complaints asks_the_platform(Source const& source);

/// A file has at most longest_file lines.
[[nodiscard]] Complaints is_short(Source const& source);

/// From its brace to its closing brace a function has at most longest_function lines. The layout of
/// the sources puts the opening brace of a function, and of little else, on a line of its own; the
/// function ends at the next closing brace that stands as far to the right.
[[nodiscard]] Complaints has_short_functions(Source const& source);

/// No macros, no singletons, no vague names, nothing left for later, and no header that opens a
/// namespace.
[[nodiscard]] Complaints is_plain(Source const& source);

/// A unit stands in a CMakeLists.txt, and so does a header of the program.
[[nodiscard]] Complaints is_listed(Source const& source, std::set<std::string> const& listed);

} // namespace unit::house
