#include "tests/soak/desk_state.h"

#include <algorithm>

namespace soak {

namespace {

Texts options_of(forms::Settings const& settings)
{
    Texts values;
    for (auto const* const box :
         {&settings.soundon, &settings.replytoall, &settings.myown, &settings.showme,
          &settings.ontop, &settings.startminimized, &settings.userlistfont,
          &settings.startclearusers, &settings.resetports, &settings.entersend, &settings.hidetip,
          &settings.autocheckusers, &settings.autoresmaster, &settings.autoreply}) {
        values.push_back(box->caption + "=" + std::to_string(box->value()));
    }
    for (auto const& response : settings.ar) {
        values.push_back(response.text());
    }
    return values;
}

Texts buttons_of(forms::Settings const& settings)
{
    Texts rows;
    for (std::size_t number = 1; number < settings.qsend.size(); ++number) {
        rows.push_back(settings.qsend[number].text() + "|" + settings.qsendtext[number].text() +
                       "|" + std::to_string(settings.qsendi[number].value()));
    }
    return rows;
}

Texts history_of(controls::Table const& table)
{
    constexpr int most = 100;
    Texts rows;
    for (int row = std::max(1, table.count() - most + 1); row <= table.count(); ++row) {
        rows.push_back(table.row(row)[2] + "|" + table.row(row)[3]);
    }
    return rows;
}

void tell(std::string& words, std::string const& part, Texts const& found, Texts const& wanted)
{
    auto const place = std::ranges::mismatch(found, wanted);
    if (found == wanted) {
        return;
    }
    words += part + " differ at " + std::to_string(place.in1 - found.begin()) + " of " +
             std::to_string(found.size()) + ": ";
    words += place.in1 == found.end() ? "nothing more" : *place.in1;
    words += " instead of ";
    words += place.in2 == wanted.end() ? "nothing more" : *place.in2;
    words += "; ";
}

} // namespace

DeskState state_of(sim::Peer& peer)
{
    auto& forms = peer.forms();
    return {.name = forms.frmMain.friendlyname,
            .users = forms.frmMain.userlist.rows(),
            .options = options_of(forms.settings),
            .buttons = buttons_of(forms.settings),
            .groups = forms.groups.List1.rows(),
            .history = history_of(forms.historyfrm.ListView1)};
}

std::string difference(DeskState const& found, DeskState const& wanted)
{
    std::string words;
    tell(words, "name", {found.name}, {wanted.name});
    tell(words, "users", found.users, wanted.users);
    tell(words, "options", found.options, wanted.options);
    tell(words, "buttons", found.buttons, wanted.buttons);
    tell(words, "groups", found.groups, wanted.groups);
    tell(words, "history", found.history, wanted.history);
    return words;
}

} // namespace soak
