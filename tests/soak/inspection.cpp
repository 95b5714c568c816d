#include "tests/soak/inspection.h"

#include "tests/soak/company.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace soak {

namespace {

constexpr int slots = 10;
constexpr int most_log_rows = 302; ///< 301, and the one that tells that the log was cleared
constexpr int most_history_rows = 100;
constexpr int foreigners = 3;

void require(bool good, Colleague& who, std::string_view what)
{
    if (!good) {
        throw Broken(who.identity + ": " + std::string(what));
    }
}

bool is_foretold(Colleague& who, std::string_view box)
{
    constexpr std::array asked_for{"Do you want Vexlo IM to continue",
                                   "Please enter your name:", "Please enter the new ",
                                   "Are you sure?"};
    return std::ranges::any_of(asked_for,
                               [box](auto const* text) { return box.starts_with(text); }) ||
           (box == "No Network Connection." && !who.peer.host.link) ||
           (box == "Port 4111 is in use." && !who.peer.host.taken.empty()) ||
           (box.starts_with("Error #") && who.bad_disk);
}

void boxes_were_foretold(Colleague& who)
{
    auto const& shown = who.peer.boxes.shown();
    for (; who.boxes_seen < shown.size(); ++who.boxes_seen) {
        auto const& text = shown[who.boxes_seen].text;
        require(is_foretold(who, text), who, "nobody foretold the box " + text);
    }
    require(who.peer.boxes.waiting() == 0, who, "a box that was foretold has not come up");
}

void ended_well(Colleague& who)
{
    constexpr int killed = 137;
    auto const status = who.peer.status().value_or(0);
    auto const& report = who.peer.report();
    bool const is_good = (status == 0 || status == killed) && report.empty();
    // A port reset behind a message that found no network announces itself, and that fails, too.
    bool const is_reset = who.peer.settings().resetports.on() && !who.peer.host.link;
    require(is_good || is_reset || who.bad_disk, who, "ended with the report " + report);
}

/// What a stamp in `popups` names is what is busy in `wins`, is on show, and is counted.
void slots_agree(Colleague& who)
{
    auto const& main = who.main();
    std::multiset<char> stamped;
    for (std::string const& row : main.popups.rows()) {
        if (row != "-") {
            stamped.insert(row.back());
        }
    }
    std::multiset<char> busy;
    std::multiset<char> shown;
    for (int slot = 0; slot < slots; ++slot) {
        auto const digit = static_cast<char>('0' + slot);
        if (main.wins.row(slot) == "-") {
            busy.insert(digit);
        }
        if (who.peer.popup(static_cast<std::size_t>(slot)).window.visible()) {
            shown.insert(digit);
        }
    }
    require(main.popups.count() == slots && main.wins.count() == slots, who, "not ten slots");
    require(stamped == busy, who, "the two tables of the popups disagree");
    require(shown == busy, who, "the popups on show are not the busy ones");
    auto const free = slots - static_cast<int>(busy.size());
    require(main.pucount.caption() == std::to_string(free), who, "the popups are counted wrong");
    require(who.peer.forms().menuform.closepopups[0].enabled == (free < slots), who,
            "the tray offers to close what is not there, or does not");
    bool const waits = who.peer.tray_icon.image == platform::TrayIcon::Image::waiting;
    require(main.away.on() || waits == (free < slots), who, "the tray icon is the wrong one");
}

void queue_moves(Colleague& who)
{
    auto const& main = who.main();
    require(!main.boxopen.on() || who.cleared_history, who, "a box is open that nobody sees");
    require(main.cue.empty() || main.Timer3.enabled() || main.boxopen.on(), who,
            "rows wait and nothing handles them");
}

void records_are_bounded(Colleague& who)
{
    require(who.bad_disk || who.peer.log().size() <= most_log_rows, who, "the log grows");
    auto const& history = who.peer.history();
    int row = history.count();
    while (row > most_history_rows && history.row(row)[2] == "To") {
        --row; // A row of a message that was sent is shown without a trim.
    }
    require(row <= most_history_rows, who, "the history grows");
}

void directory_is_right(Colleague& who)
{
    auto const& rows = who.main().userlist.rows();
    std::set<std::string> identities;
    for (std::string const& row : rows) {
        require(identities.insert(row.substr(0, row.find('='))).second, who,
                "twice in the directory: " + row);
    }
    require(rows.size() <= who.company.colleagues.size() + foreigners, who, "the directory grows");
    for (Colleague const& other : who.company.colleagues) {
        auto const row = std::ranges::find_if(
            rows, [&](auto const& each) { return each.starts_with(other.identity); });
        // A full disk cuts a name, and a start on that disk reads what is left.
        require(row == rows.end() || who.files_differ ||
                    other.names.contains(row->substr(row->find('=') + 1)),
                who, "a name that nobody ever had");
    }
    auto const shown = who.main().allusers.rows();
    require(std::set<std::string>(shown.begin(), shown.end()).size() == shown.size(), who,
            "somebody stands in the list twice");
}

std::string lines(std::vector<std::string> const& rows)
{
    std::string content;
    for (std::string const& row : rows) {
        content.append(row).append("\r\n");
    }
    return content;
}

void files_hold_what_is_shown(Colleague& who)
{
    if (who.files_differ) {
        return;
    }
    auto& files = who.peer.files;
    std::set<std::string> const known{"buttons.txt",  "groups.txt", "hist.dat",
                                      "settings.txt", "users.txt",  "vexlo.wav"};
    for (std::string const& file : files.names()) {
        require(file.starts_with("logs/log") || known.contains(file), who, "a new file " + file);
    }
    require(files.content("users.txt") == lines(who.main().userlist.rows()), who,
            "the directory on disk is another one");
    auto const log = who.peer.log();
    if (!log.empty() && log.back().ends_with("Log Saved and cleared.")) {
        return; // The mirror keeps the old rows until the next one is written.
    }
    require(files.content("logs/logtemp.txt") == lines(log), who, "the log on disk is another one");
}

void discover(Colleague& who)
{
    who.peer.enter([&] { who.peer.forms().menuform.toolsmenu.choose(2); });
    who.company.calm();
}

bool lists_all(Colleague& who, std::set<std::string> const& present)
{
    auto wanted = present;
    if (!who.peer.settings().showme.on()) {
        wanted.erase(who.shown_name());
    }
    auto const rows = who.main().allusers.rows();
    std::set<std::string> const shown(rows.begin(), rows.end());
    return std::ranges::includes(shown, wanted);
}

} // namespace

void inspect(Colleague& who)
{
    boxes_were_foretold(who);
    if (!who.running()) {
        ended_well(who);
        return;
    }
    who.cleared_history = who.cleared_history && who.main().boxopen.on();
    slots_agree(who);
    queue_moves(who);
    records_are_bounded(who);
    directory_is_right(who);
    files_hold_what_is_shown(who);
}

void require_received(Colleague& who, std::string_view text)
{
    auto const& history = who.peer.history();
    for (int row = history.count(); row > 0; --row) {
        if (history.row(row)[5].find(text) != std::string::npos) {
            return;
        }
    }
    require(false, who, "has not received: " + std::string(text));
}

void inspect_together(Company& company)
{
    std::vector<Colleague*> present;
    std::set<std::string> names;
    for (Colleague& each : company.colleagues) {
        if (each.hears()) {
            present.push_back(&each);
            names.insert(each.shown_name());
        }
    }
    constexpr int rounds = 3;
    auto const incomplete = [&] {
        return std::ranges::find_if_not(present,
                                        [&](Colleague* each) { return lists_all(*each, names); });
    };
    for (int round = 0; round < rounds && incomplete() != present.end(); ++round) {
        discover(*present.front());
    }
    auto const missing = incomplete();
    require(missing == present.end(), missing == present.end() ? *present.front() : **missing,
            "somebody is not on the list after three rounds");
    company.pass(std::chrono::seconds(6)); // The watch has shown the title.
    for (Colleague* const each : present) {
        inspect(*each);
        auto const title = "Vexlo - " + each->shown_name() + " Listening";
        require(each->main().window.caption == title, *each, "another title than " + title);
        require(each->main().statustext.caption() == title, *each, "the status line tells another");
    }
}

} // namespace soak
