#include "tests/soak/colleague.h"

#include "tests/soak/company.h"
#include "tests/soak/inspection.h"
#include "tests/soak/roster.h"

#include <algorithm>

namespace soak {

Colleague::Colleague(Company& at, int with_number)
    : company(at), number(with_number), identity(roster::identity(with_number)),
      peer(at.office.host(roster::room(with_number), roster::account(with_number)))
{
    peer.clock.set(company.clock.now());
    peer.boxes.answer_all();
}

void Colleague::prepare()
{
    auto const people = static_cast<int>(company.colleagues.size());
    peer.prepare(roster::name(number), roster::setup(number, people));
    peer.files.put("groups.txt", roster::group_file(number, people));
    names.insert(roster::name(number));
}

void Colleague::come()
{
    at_work = true;
    if (running()) {
        return; // It has run all night.
    }
    note("starts");
    bool const is_first = names.empty();
    if (is_first) {
        prepare();
    }
    stuck = elsewhere = cleared_history = false;
    keep_backup();
    auto left = state_of(peer);
    left.history = saved_history_;
    peer.start();
    if (running() && !bad_disk) {
        if (!is_first && !files_differ) {
            require_same_as(std::move(left));
        }
        files_differ = false;
        saved_history_ = state_of(peer).history;
    }
    inspect(*this);
}

void Colleague::keep_backup()
{
    for (std::string const& file : peer.files.names()) {
        if (!bad_disk) {
            backup_[file] = peer.files.content(file);
        }
    }
}

void Colleague::require_same_as(DeskState left)
{
    auto const found = state_of(peer);
    if (peer.settings().startclearusers.on()) {
        left.users = {identity + "=" + left.name};
    }
    if (found != left) {
        throw Broken(identity +
                     " finds something else on the disk than was left: " + difference(found, left));
    }
}

void Colleague::go_home()
{
    if (!turns_to_the_program()) {
        return crash();
    }
    note("goes home");
    auto const history = state_of(peer).history;
    if (!history.empty()) {
        saved_history_ = history; // An empty one leaves the old file alone.
    }
    peer.person.leave();
    inspect(*this);
    if (!bad_disk && peer.files.has("logs/logtemp.txt")) {
        throw Broken(identity + " has left a log that is not finished");
    }
}

/// The history is written at the end alone: what came since the start is lost.
void Colleague::crash()
{
    if (running()) {
        note("crashes");
        peer.crash();
    }
}

bool Colleague::turns_to_the_program()
{
    if (!running()) {
        return false;
    }
    if (!main().window.visible() || main().minimized == "yes") {
        peer.enter([this] { peer.tray_icon.left_pressed(); });
    }
    return main().window.visible() && main().allusers.enabled;
}

void Colleague::note(std::string_view what)
{
    company.note(identity, what);
}

void Colleague::has_written(std::vector<std::string> const& to, std::string_view text)
{
    if (!company.fair || !hears()) {
        return;
    }
    company.calm();
    for (Colleague& other : company.colleagues) {
        bool const is_meant = std::ranges::find(to, other.shown_name()) != to.end();
        if (&other != this && is_meant && other.hears() && hears()) {
            require_received(other, text);
        }
    }
}

std::string Colleague::shown_name()
{
    return main().letters.proper(name());
}

std::vector<std::string> Colleague::others()
{
    auto rows = main().allusers.rows();
    std::erase(rows, shown_name());
    return rows;
}

std::vector<forms::Popup*> Colleague::popups()
{
    std::vector<forms::Popup*> shown;
    for (forms::Popup& popup : peer.forms().popup) {
        if (popup.window.visible()) {
            shown.push_back(&popup);
        }
    }
    return shown;
}

void Colleague::pick(std::vector<std::string> const& wanted)
{
    auto& list = main().allusers;
    std::vector<int> places;
    for (std::string const& name : wanted) {
        auto const rows = list.rows();
        places.push_back(static_cast<int>(std::ranges::find(rows, name) - rows.begin()));
    }
    peer.enter([&] { list.choose_many(places, places.back()); });
}

bool Colleague::hears()
{
    return running() && !stuck && !elsewhere && peer.host.link && !main().boxopen.on();
}

void Colleague::spoil_disk(bool full)
{
    constexpr std::size_t left = 600;
    inspect(*this);
    note(full ? "has a full disk" : "has a disk that takes nothing");
    bad_disk = files_differ = true;
    std::size_t taken = 0;
    for (std::string const& file : peer.files.names()) {
        taken += peer.files.content(file).size();
    }
    peer.files.read_only = !full;
    peer.files.space = full ? std::optional(taken + left) : std::nullopt;
}

void Colleague::mend_disk()
{
    inspect(*this);
    note("has a good disk again");
    bad_disk = false;
    peer.files.read_only = false;
    peer.files.space.reset();
    for (auto const& [file, content] : backup_) {
        peer.files.put(file, content); // A full disk has cut what was written.
    }
}

void Colleague::close_the_books()
{
    peer.status_repaints.clear();
    peer.sound.played.clear();
    peer.tray_icon.steps.clear();
    peer.outside.opened.clear();
    peer.outside.started.clear();
    for (std::string const& file : peer.files.names()) {
        if (file.starts_with("logs/log2")) {
            peer.files.erase(file); // Finished logs go to the archive.
        }
    }
}

} // namespace soak
