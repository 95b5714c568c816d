#include "network/presence.h"

#include "network/directory.h"
#include "network/identity.h"
#include "text/failure.h"
#include "text/numbers.h"

#include <string>

namespace network {

namespace {

constexpr int ticks_between_checks = 360;

} // namespace

Presence::Presence(forms::FrmMain& frmMain, forms::Settings const& settings, Transport& transport,
                   platform::Environment const& environment)
    : frmMain_(frmMain), settings_(settings), transport_(transport), environment_(environment)
{
}

void Presence::getusers()
{
    frmMain_.user = own_identity(environment_, frmMain_.letters);
    transport_.send(wire::presence(wire::announce, frmMain_.user, frmMain_.friendlyname));
    frmMain_.usercount = "0";
}

void Presence::check_users()
{
    if (!frmMain_.autocheckusers.on() || !frmMain_.cue.empty()) {
        return;
    }
    auto const ticks = text::leading_whole_number(frmMain_.usercount) + 1;
    frmMain_.usercount = std::to_string(ticks);
    if (ticks > ticks_between_checks) {
        frmMain_.usercount = "0";
        round_under_notice({});
    }
}

void Presence::check_users_now()
{
    round_under_notice(frmMain_.loadusers);
}

void Presence::round_under_notice(controls::Command const& before)
{
    auto const status = frmMain_.statustext.caption();
    frmMain_.statustext.set_caption("Checking for users ...");
    frmMain_.statustext.repaint.run();
    frmMain_.allusers.clear();
    before.run();
    frmMain_.getusers.run();
    frmMain_.statustext.set_caption(status);
}

void Presence::handle(wire::Presence const& presence)
{
    if (presence.marker == wire::sign_off) {
        signed_off(presence);
    } else {
        announced(presence);
    }
}

void Presence::signed_off(wire::Presence const& presence)
{
    auto const& users = frmMain_.userlist;
    for (int index = 0; index < users.count(); ++index) {
        std::string_view const row = users.row(index);
        if (row.find(presence.identity) == text::npos ||
            frmMain_.letters.upper(row_name(row)) != presence.name) {
            continue;
        }
        // Upper case is compared with the list's proper case: only names such as `7` or `A` leave
        // the list.
        for (int shown = frmMain_.allusers.count() - 1; shown >= 0; --shown) {
            if (frmMain_.allusers.row(shown) == presence.name) {
                frmMain_.allusers.remove(shown);
            }
        }
        frmMain_.statustext.set_caption(presence.name + " has signed off");
        return; // The row stays: a sign-off never removes anybody from the directory.
    }
}

void Presence::announced(wire::Presence const& presence)
{
    bool const is_announcement = presence.marker == wire::announce;
    if (is_announcement) {
        answer(); // Every announcement is answered, the own one too.
    }
    int const row = row_with(presence.identity);
    if (row != controls::ListBox::none) {
        if (frmMain_.letters.same(row_name(frmMain_.userlist.row(row)), presence.name)) {
            known(presence);
            return;
        }
        // A new name. The first row that holds the identity anywhere goes, even a longer
        // identity's.
        frmMain_.userlist.remove(row);
    } else if (is_announcement) {
        // A newcomer gets a second answer: its first one only makes the row that the second one
        // shows.
        answer();
    }
    frmMain_.userlist.add(presence.identity + "=" + presence.name);
    // The list on show is emptied whole; names come back as datagrams of known users arrive.
    frmMain_.allusers.clear();
    text::attempt([this] { frmMain_.saveusers.run(); });
}

void Presence::known(wire::Presence const& presence)
{
    for (int shown = 0; shown < frmMain_.allusers.count(); ++shown) {
        if (frmMain_.letters.same(frmMain_.allusers.row(shown), presence.name)) {
            return;
        }
    }
    // The own entry is known by its name, not by its identity.
    bool const is_own = frmMain_.friendlyname == presence.name;
    if (!is_own || settings_.showme.on()) {
        frmMain_.allusers.add(frmMain_.letters.proper(presence.name));
    }
}

void Presence::answer()
{
    text::attempt([this] {
        transport_.send(wire::presence(wire::answer, frmMain_.user, frmMain_.friendlyname));
    });
}

int Presence::row_with(std::string_view identity) const
{
    for (int index = 0; index < frmMain_.userlist.count(); ++index) {
        if (frmMain_.userlist.row(index).find(identity) != text::npos) {
            return index;
        }
    }
    return controls::ListBox::none;
}

void Presence::sign_off()
{
    transport_.send(wire::presence(wire::sign_off, frmMain_.user, frmMain_.friendlyname));
}

void Presence::dash()
{
    transport_.send(wire::presence(wire::dash, frmMain_.user, frmMain_.friendlyname));
}

} // namespace network
