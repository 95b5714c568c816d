#include "tests/unit/house_rules.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>
#include <string_view>

namespace unit::house {

namespace {

namespace fs = std::filesystem;

using Folders = std::set<std::string>;

constexpr std::array homes{"src", "sim", "terminal", "demo", "tests", "bench", "fuzz"};

/// What each folder of the program may include beside itself.
std::map<std::string, Folders> const may_include = [] {
    Folders const forms{"text", "controls", "forms"};
    auto const with = [](Folders below, Folders const& more) {
        below.insert(more.begin(), more.end());
        return below;
    };
    auto const third = with(forms, {"platform"});
    auto const messaging = with(third, {"records", "popups", "network"});
    auto const surfaces = with(third, {"records", "network"});
    auto const core = with(messaging, {"messaging", "config", "desktop"});
    auto const all = with(core, {"core"});
    return std::map<std::string, Folders>{
        {"text", {}},
        {"platform", {"text"}},
        {"controls", {"text"}},
        {"forms", forms},
        {"records", third},
        {"popups", third},
        {"network", third},
        {"messaging", messaging},
        {"config", surfaces},
        {"desktop", surfaces},
        {"core", core},
        {"tap", all},
        {"qt", all},
        {"sim", with(all, {"tap"})},
    };
}();

/// What a flow asks an interface of the platform for.
constexpr std::array asked_of_the_platform{
    "arpa",      "cstdio",   "ctime",  "dirent.h", "filesystem", "fstream",
    "ifaddrs.h", "iostream", "mutex",  "net",      "netinet",    "random",
    "stdio.h",   "sys",      "thread", "time.h",   "unistd.h",
};

/// "text" for "src/text/fields.h", "sim" for "sim/peer.h", nothing outside the program.
std::string folder_of(std::string const& path)
{
    if (path.starts_with("sim/")) {
        return "sim";
    }
    if (!path.starts_with("src/")) {
        return {};
    }
    auto const begin = path.find('/') + 1;
    return path.substr(begin, path.find('/', begin) - begin);
}

bool is_logic(Source const& source)
{
    auto const folder = folder_of(source.path);
    return !folder.empty() && folder != "qt" && folder != "sim";
}

std::string first_folder(std::string const& included)
{
    return included.substr(0, included.find('/'));
}

std::string at(Source const& source, std::size_t line)
{
    return source.path + ":" + std::to_string(line) + ": ";
}

/// What a rule looks for. Only lines that hold one of the hints are searched, which takes a
/// hundredth of the time.
struct Pattern {
    std::vector<std::string_view> hints;
    std::regex text;

    [[nodiscard]] bool may_stand_in(std::string_view line) const
    {
        return std::ranges::any_of(
            hints, [line](auto const hint) { return line.find(hint) != std::string_view::npos; });
    }
};

/// Calls `judge` with the first group of what `pattern` finds in each line; what it returns, unless
/// it is empty, is a complaint.
template <typename Judge>
Complaints judged(Source const& source, Pattern const& pattern, Judge judge)
{
    Complaints complaints;
    for (std::size_t line = 1; line <= source.lines.size(); ++line) {
        auto const& text = source.lines[line - 1];
        std::smatch found;
        if (!pattern.may_stand_in(text) || !std::regex_search(text, found, pattern.text)) {
            continue;
        }
        if (auto const complaint = judge(found[1].str()); !complaint.empty()) {
            complaints.push_back(at(source, line) + complaint);
        }
    }
    return complaints;
}

Complaints found(Source const& source, Pattern const& pattern, std::string const& complaint)
{
    return judged(source, pattern, [&](std::string const&) { return complaint; });
}

void add(Complaints& all, Complaints more)
{
    std::ranges::move(more, std::back_inserter(all));
}

std::string content_of(fs::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool is_unit(fs::path const& path)
{
    return path.extension() == ".cpp";
}

bool is_header(fs::path const& path)
{
    return path.extension() == ".h";
}

template <typename Take>
void for_each_file(fs::path const& project, Take take)
{
    for (auto const* home : homes) {
        if (!fs::is_directory(project / home)) {
            continue;
        }
        for (auto const& entry : fs::recursive_directory_iterator(project / home)) {
            if (entry.is_regular_file()) {
                take(entry.path());
            }
        }
    }
}

} // namespace

std::vector<Source> sources_of(fs::path const& project)
{
    std::vector<Source> sources;
    for_each_file(project, [&](fs::path const& path) {
        if (!is_unit(path) && !is_header(path)) {
            return;
        }
        Source source{path.lexically_relative(project).generic_string(), {}};
        std::istringstream content(content_of(path));
        for (std::string line; std::getline(content, line);) {
            source.lines.push_back(line);
        }
        sources.push_back(std::move(source));
    });
    std::ranges::sort(sources, {}, &Source::path);
    return sources;
}

std::set<std::string> names_listed_by(std::string const& list)
{
    static std::regex const word(R"([\w./-]+)");
    bool const in_a_loop = list.find("}.cpp") != std::string::npos;
    std::set<std::string> names;
    for (std::sregex_iterator found(list.begin(), list.end(), word), end; found != end; ++found) {
        auto const name = found->str();
        if (is_unit(name) || is_header(name)) {
            names.insert(name);
        } else if (in_a_loop) {
            names.insert(name + ".cpp");
        }
    }
    return names;
}

std::set<std::string> listed_in(fs::path const& project)
{
    std::set<std::string> listed;
    for_each_file(project, [&](fs::path const& path) {
        if (path.filename() == "CMakeLists.txt" || path.extension() == ".cmake") {
            auto const folder = path.lexically_relative(project).parent_path();
            for (std::string const& name : names_listed_by(content_of(path))) {
                listed.insert((folder / name).lexically_normal().generic_string());
            }
        }
    });
    return listed;
}

Complaints includes_only_below(Source const& source)
{
    static Pattern const include{{"#"}, std::regex(R"rx(^\s*#\s*include\s*"([^"]*)")rx")};
    auto const folder = folder_of(source.path);
    if (folder.empty()) {
        return {};
    }
    auto const known = may_include.find(folder);
    if (known == may_include.end()) {
        return {at(source, 1) + folder + " stands on no floor of the house"};
    }
    return judged(source, include, [&](std::string const& included) {
        auto const other = first_folder(included);
        bool const may = other == folder || known->second.contains(other);
        return may ? std::string() : folder + " may not include " + included;
    });
}

Complaints keeps_qt_out(Source const& source)
{
    static Pattern const include{
        {"#"}, std::regex(R"rx(^\s*#\s*include\s*[<"](Q\w[^>"]*|q\w*\.h|qt/[^>"]*)[>"])rx")};
    auto const folder = folder_of(source.path);
    return folder.empty() || folder == "qt" ? Complaints()
                                            : found(source, include, folder + " may not know Qt");
}

Complaints asks_the_platform(Source const& source)
{
    static Pattern const include{{"#"}, std::regex(R"rx(^\s*#\s*include\s*<([^>]*)>)rx")};
    static Pattern const looked{{"getenv", "_clock"},
                                std::regex(R"(\b(getenv|system_clock|steady_clock)\b)")};
    if (!is_logic(source)) {
        return {};
    }
    auto const instead_of = [](std::string const& shortcut) {
        return "the platform is to be asked instead of " + shortcut;
    };
    auto all = judged(source, include, [&](std::string const& included) {
        bool const may = std::ranges::find(asked_of_the_platform, first_folder(included)) ==
                         asked_of_the_platform.end();
        return may ? std::string() : instead_of("<" + included + ">");
    });
    add(all, judged(source, looked, instead_of));
    return all;
}

Complaints is_short(Source const& source)
{
    auto const lines = source.lines.size();
    return lines <= longest_file
               ? Complaints()
               : Complaints{at(source, lines) + "a file of " + std::to_string(lines) + " lines"};
}

Complaints has_short_functions(Source const& source)
{
    Complaints complaints;
    for (auto open = source.lines.begin(); open != source.lines.end(); ++open) {
        auto const indent = open->find_first_not_of(' ');
        if (indent == std::string::npos || open->substr(indent) != "{") {
            continue;
        }
        auto const close = std::find_if(open, source.lines.end(), [indent](auto const& line) {
            return line.find_first_not_of(' ') == indent && line[indent] == '}';
        });
        auto const length = static_cast<std::size_t>(close - open) + 1;
        if (length > longest_function) {
            auto const line = static_cast<std::size_t>(open - source.lines.begin()) + 1;
            complaints.push_back(at(source, line) + "a function of " + std::to_string(length) +
                                 " lines");
        }
    }
    return complaints;
}

Complaints is_plain(Source const& source)
{
    static Pattern const macro{{"#"}, std::regex(R"(^\s*#\s*define\b)")};
    static Pattern const singleton{{"ingleton", "INGLETON"},
                                   std::regex("singleton", std::regex::icase)};
    static Pattern const later{{"TODO", "FIXME", "XXX"}, std::regex(R"(\b(TODO|FIXME|XXX)\b)")};
    static Pattern const opened{{"using"}, std::regex(R"(^\s*using\s+namespace\b)")};
    // Qt's own names are not ours to choose.
    static Pattern const vague{{"Manager", "Helper", "Utils", "Impl"},
                               std::regex(R"(\b((?!Q[A-Z])\w*(?:Manager|Helper|Utils|Impl))\b)")};
    Complaints all;
    if (is_header(source.path)) {
        add(all, found(source, opened, "a header opens a namespace"));
    }
    if (folder_of(source.path).empty()) {
        return all;
    }
    add(all, found(source, macro, "a macro"));
    add(all, found(source, singleton, "a singleton"));
    add(all, found(source, later, "something is left for later"));
    add(all, judged(source, vague,
                    [](std::string const& name) { return name + " says nothing of what it is"; }));
    return all;
}

Complaints is_listed(Source const& source, std::set<std::string> const& listed)
{
    bool const is_due = is_unit(source.path) || !folder_of(source.path).empty();
    return !is_due || listed.contains(source.path)
               ? Complaints()
               : Complaints{at(source, 1) + "no CMakeLists.txt lists it"};
}

} // namespace unit::house
