#include "sim/minutes.h"

#include "text/numbers.h"

#include <algorithm>
#include <utility>

namespace sim {

Minutes::Minutes(Office& office, Peer& peer, Take take)
    : office_(office), peer_(peer), take_(std::move(take)), stamps_(peer.frmMain().popups.rows()),
      status_(peer.frmMain().statustext.caption()), list_(list()), log_(peer.log()),
      sent_(office.segment.sent().size()), boxes_(peer.boxes.shown().size()),
      running_(peer.running())
{
}

void Minutes::run(Duration planned, Duration end)
{
    auto const is_over = [&] {
        return office_.scheduler.now() > planned && office_.segment.in_flight() == 0 &&
               peer_.frmMain().cue.empty();
    };
    while (peer_.running() && !is_over() && office_.scheduler.step(end)) {
        look();
    }
}

void Minutes::look()
{
    look_at_segment();
    look_at_popups();
    look_at_log();
    tell_change("list", list_, list());
    tell_change("status", status_, peer_.frmMain().statustext.caption());
    look_at_boxes();
    if (std::exchange(running_, peer_.running()) && !running_) {
        tell("end", peer_.report());
    }
}

void Minutes::look_at_segment()
{
    auto const& sent = office_.segment.sent();
    for (; sent_ < sent.size(); ++sent_) {
        if (sent[sent_].host == peer_.host.name) {
            tell("send", *sent[sent_].bytes);
        }
    }
}

void Minutes::look_at_popups()
{
    auto stamps = peer_.frmMain().popups.rows();
    for (auto const& stamp : stamps) {
        if (stamp != "-" && std::ranges::find(stamps_, stamp) == stamps_.end()) {
            auto const slot = static_cast<std::size_t>(
                text::leading_whole_number(std::string_view(stamp).substr(stamp.size() - 1)));
            auto const& popup = peer_.popup(slot);
            tell("popup", popup.messagefrom.caption() + ": " + popup.message.text());
        }
    }
    stamps_ = std::move(stamps);
}

void Minutes::look_at_log()
{
    auto rows = peer_.log();
    // A log that is rolled has fewer rows, and none is new.
    bool const is_new = rows.size() > log_.size() ||
                        (rows.size() == log_.size() && !rows.empty() && rows.back() != log_.back());
    if (is_new) {
        tell("log", rows.back());
    }
    log_ = std::move(rows);
}

void Minutes::look_at_boxes()
{
    for (auto const& shown = peer_.boxes.shown(); boxes_ < shown.size(); ++boxes_) {
        tell("box", shown[boxes_].text);
    }
}

void Minutes::tell(std::string_view what, std::string_view text)
{
    take_({.when = office_.scheduler.now(), .what = what, .text = std::string(text)});
}

void Minutes::tell_change(std::string_view what, std::string& known, std::string const& present)
{
    if (known != present) {
        known = present;
        tell(what, present);
    }
}

std::string Minutes::list() const
{
    std::string names;
    for (auto const& name : peer_.frmMain().allusers.rows()) {
        names += (names.empty() ? "" : ", ") + name;
    }
    return names;
}

} // namespace sim
