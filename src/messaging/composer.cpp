#include "messaging/composer.h"

#include "messaging/groups.h"
#include "messaging/outgoing.h"
#include "network/directory.h"
#include "network/identity.h"
#include "network/wire.h"

namespace messaging {

namespace wire = network::wire;

namespace {

constexpr int users_tab = 0;
constexpr int groups_tab = 1;

} // namespace

Composer::Composer(Uses uses) : uses_(uses), frmMain_(uses.forms.frmMain)
{
    auto& text = frmMain_.messagetext;
    text.changed.attach([this] { text_changed(); });
    text.focus.got.attach([this] { frmMain_.messagetext.caret_to_end(); });
    frmMain_.allusers.clicked.attach([this] { users_clicked(); });
    frmMain_.List1.clicked.attach([this] { group_clicked(); });
    frmMain_.Checkallusers.clicked.attach(
        [this] { frmMain_.allusers.enabled = !frmMain_.Checkallusers.on(); });
    frmMain_.sendbtn.clicked.attach([this] { sendbtn(); });
    frmMain_.Command3.clicked.attach([this] { Command3(); });
}

void Composer::text_changed()
{
    if (frmMain_.away.on()) {
        uses_.away.switch_off(); // Whoever types is at the desk.
    }
    bool const too_long =
        frmMain_.messagetext.length() > static_cast<std::size_t>(frmMain_.messlen);
    frmMain_.Label5.set_caption(too_long ? "Message length exceeded" : "");
    frmMain_.Label5.visible = too_long;
    frmMain_.Frame2.visible = too_long;
}

void Composer::take_selected_users()
{
    frmMain_.multiusers.clear();
    for (std::string const& name : frmMain_.allusers.selected_rows()) {
        frmMain_.multiusers.add(name);
    }
}

void Composer::users_clicked()
{
    take_selected_users();
    frmMain_.messagetext.focus.set();
}

void Composer::group_clicked()
{
    frmMain_.multiusers.clear();
    frmMain_.multiusers.add(""); // An empty row is enough to wake the keys.
    frmMain_.messagetext.focus.set();
}

void Composer::Command3()
{
    if (frmMain_.fwd.on()) {
        end_forward();
    }
    frmMain_.messagetext.set_text("");
    frmMain_.messagetext.focus.set();
}

void Composer::sendbtn()
{
    remember_draft();
    try {
        send_draft();
    } catch (text::Failure const& failure) {
        failed(failure);
    }
}

void Composer::remember_draft()
{
    int const tab = frmMain_.SSTab1.tab();
    frmMain_.recalltext = frmMain_.messagetext.text();
    frmMain_.recalltab = std::to_string(tab);
    if (tab == users_tab) {
        frmMain_.recallindex = std::to_string(frmMain_.allusers.index());
    } else if (tab == groups_tab) {
        frmMain_.recallindex = std::to_string(frmMain_.List1.index());
    }
    frmMain_.history.visible = true;
    frmMain_.history.enabled = true;
}

void Composer::send_draft()
{
    auto& draft = frmMain_.messagetext;
    auto const limit = static_cast<std::size_t>(frmMain_.messlen);
    if (draft.length() > limit) {
        draft.set_text(std::string_view(draft.text()).substr(0, limit));
    }
    uses_.away.switch_off();
    take_selected_users(); // On any tab: behind a send to a group the keys are dead again.
    frmMain_.user = network::own_identity(uses_.environment, frmMain_.letters);
    if (draft.empty()) {
        reset_ports_if_wanted();
        return;
    }
    if (frmMain_.SSTab1.tab() >= groups_tab) {
        send_to_group();
    } else if (frmMain_.Checkallusers.on()) {
        send_to_all();
    } else {
        send_to_users();
    }
}

void Composer::send_to_group()
{
    if (frmMain_.SSTab1.tab() == groups_tab) {
        auto const group = chosen_group(frmMain_.List1.text(), uses_.forms.groups);
        for (std::string const& recipient : recipients_of(group, frmMain_)) {
            uses_.transport.send(
                wire::message(frmMain_.user, recipient, frmMain_.messagetext.text()));
        }
        uses_.records.log_row("Msg to   ", group.name, frmMain_.messagetext.text());
        keep_history(group.name);
        frmMain_.messagetext.set_text("");
    }
    finish();
}

void Composer::send_to_all()
{
    constexpr std::string_view target = "ALL";
    auto& draft = frmMain_.messagetext;
    frmMain_.Checkallusers.set(0);
    frmMain_.allusers.enabled = true;
    // The limit was applied before this prefix: what goes out may be longer.
    draft.set_text(text_to_all(frmMain_.friendlyname, draft.text()));
    uses_.transport.send(wire::message(frmMain_.user, wire::to_all, draft.text()));
    uses_.records.log_row("Msg to   ", target, draft.text());
    keep_history(target);
    frmMain_.statustext.set_caption("Message sent to " + std::string(target));
    draft.set_text("");
    frmMain_.cleanlog.run();
    draft.focus.set();
    reset_ports_if_wanted();
}

void Composer::send_to_users()
{
    std::string const target = frmMain_.allusers.text();
    if (target.empty() || frmMain_.multiusers.empty()) {
        reset_ports_if_wanted();
        return;
    }
    std::string names;
    for (std::string const& name : frmMain_.multiusers.rows()) {
        names += ", " + name;
        send_to_one(name);
    }
    // The list of names starts with its separator: "Message sent to , Anna Berg, Carl Dunn". One
    // recipient is told by the list's mark, which may stand on somebody else.
    frmMain_.statustext.set_caption("Message sent to " +
                                    (frmMain_.multiusers.count() == 1 ? target : names));
    frmMain_.messagetext.set_text("");
    if (frmMain_.fwd.on()) {
        end_forward();
    }
    finish();
}

void Composer::send_to_one(std::string_view name)
{
    auto const& draft = frmMain_.messagetext.text();
    auto const recipient = lookup(name);
    if (frmMain_.fwd.on()) {
        // A forward goes out under the first sender's identity and name.
        auto const& first_sender = frmMain_.fwd.caption;
        uses_.transport.send(
            wire::message(lookup(first_sender), recipient, wire::signed_text(first_sender, draft)));
        uses_.records.log_row("Fwd to   ", name, draft);
    } else {
        uses_.transport.send(wire::message(frmMain_.user, recipient,
                                           wire::signed_text(frmMain_.friendlyname, draft)));
        uses_.records.log_row("Msg to   ", name, draft);
    }
    keep_history(name);
}

void Composer::end_forward()
{
    for (std::size_t button = 1; button < frmMain_.qb.size(); ++button) {
        frmMain_.qb[button].enabled = !frmMain_.qb[button].caption.empty();
    }
    frmMain_.fwd.set(0);
}

void Composer::finish()
{
    frmMain_.cleanlog.run();
    reset_ports_if_wanted();
    frmMain_.messagetext.focus.set();
}

void Composer::reset_ports_if_wanted()
{
    if (uses_.forms.settings.resetports.on()) {
        frmMain_.Command6.run();
    }
}

std::string Composer::lookup(std::string_view name) const
{
    return network::lookupuser(name, frmMain_.userlist, frmMain_.letters);
}

void Composer::keep_history(std::string_view target)
{
    uses_.records.history_row({.target = target,
                               .text = frmMain_.messagetext.text(),
                               .recalltab = frmMain_.recalltab,
                               .recallindex = frmMain_.recallindex});
}

void Composer::failed(text::Failure const& failure)
{
    if (uses_.trouble.tell_sending_failed(failure) == network::Trouble::Told::nothing) {
        return;
    }
    frmMain_.messagetext.set_text("");
    frmMain_.cleanlog.run();
    if (failure.text == text::no_route_to_host) {
        reset_ports_if_wanted();
    }
    frmMain_.messagetext.focus.set();
}

} // namespace messaging
