#include "sim/setup.h"

#include "core/settings_lines.h"
#include "core/version.h"

#include <algorithm>
#include <array>

namespace sim {

namespace {

using Entry = std::pair<std::string_view, std::string_view>;

constexpr std::array usual{
    Entry{"LISTENINGPORT", "4111"},
    Entry{"SENDINGPORT", "4112"},
    Entry{"PLAYSOUND", "1"},
    Entry{"REPLYTOALL", "0"},
    Entry{"SHOWOWN", "0"},
    Entry{"AUTORESPONSEMSG", "I'm away from my desk"},
    Entry{"AUTORESPONSEMSG1", "I'm out of the office"},
    Entry{"AUTORESPONSEMSG2", "I'm in a meeting"},
    Entry{"AUTORESPONSEMSG3", ""},
    Entry{"AUTORESPONSEFORWARD", "1"},
    Entry{"AUTORESPONSEALLOW", "0"},
    Entry{"SHOWMEINLIST", "1"},
    Entry{"STARTWITHWINDOWS", "1"},
    Entry{"MINIMIZEONSTART", "0"},
    Entry{"KEEPINFRONT", "0"},
    Entry{"MESSAGEFONTSIZE", "10"},
    Entry{"USERLISTFONT", "0"},
    Entry{"STARTCLEARUSERCACHE", "0"},
    Entry{"RESETPORTS", "0"},
    Entry{"ENTERSEND", "0"},
    Entry{"HIDEENTERSENDTIP", "0"},
    Entry{"WAVEFILE", ""},
    Entry{"WINPOSX", "10000"},
    Entry{"WINPOSY", "5000"},
    Entry{"AUTOCHECKUSERS", "0"},
};

} // namespace

std::string settings_file(std::string_view name,
                          std::vector<std::pair<std::string, std::string>> const& settings)
{
    core::settings_lines::Writer file;
    file.line("Vexlo Instant Messaging v" + core::version_text());
    file.line("Settings file");
    file.entry("MY NAME", name);
    for (auto const& [key, value] : usual) {
        auto const told = std::ranges::find(
            settings, key, [](auto const& each) { return std::string_view(each.first); });
        file.entry(key, told == settings.end() ? value : std::string_view(told->second));
    }
    file.line("End");
    return file.text();
}

std::string lines(std::vector<std::string> const& rows)
{
    core::settings_lines::Writer file;
    for (std::string const& row : rows) {
        file.line(row);
    }
    return file.text();
}

} // namespace sim
