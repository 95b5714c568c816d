#include "tap/letters.h"

#include "messaging/groups.h"
#include "messaging/outgoing.h"
#include "network/directory.h"
#include "network/wire.h"
#include "text/fields.h"

namespace tap {

namespace wire = network::wire;

namespace {

constexpr std::string_view name_of_all = "ALL";

std::string lookup(std::string_view name, forms::FrmMain const& frmMain)
{
    return network::lookupuser(name, frmMain.userlist, frmMain.letters);
}

int row_of(std::string_view recipient, controls::ListBox const& userlist,
           text::CharacterSet const& letters)
{
    int index = 0;
    while (index < userlist.count()) {
        std::string_view const row = userlist.row(index);
        if (letters.upper(row.substr(0, row.find('='))) == recipient) {
            return index;
        }
        ++index;
    }
    return controls::ListBox::none;
}

/// The names that would be found if the ones before them were not there.
std::vector<std::string> names_that_fit(std::string_view name, forms::FrmMain const& frmMain)
{
    std::vector<std::string> names;
    auto rest = frmMain.userlist;
    while (true) {
        auto const found = network::lookupuser(name, rest, frmMain.letters);
        int const index = row_of(found, rest, frmMain.letters);
        if (index == controls::ListBox::none) {
            return names;
        }
        names.emplace_back(network::row_name(rest.row(index)));
        rest.remove(index);
    }
}

std::string name_of(std::string_view recipient, forms::FrmMain const& frmMain)
{
    if (recipient == wire::to_all) {
        return std::string(name_of_all);
    }
    int const index = row_of(recipient, frmMain.userlist, frmMain.letters);
    return index == controls::ListBox::none
               ? std::string()
               : std::string(network::row_name(frmMain.userlist.row(index)));
}

} // namespace

std::string as_typed(std::string_view text)
{
    std::string typed;
    for (std::size_t place = 0; place < text.size(); ++place) {
        auto const rest = text.substr(place);
        if (rest.starts_with(text::line_end)) {
            ++place;
        }
        if (rest.front() == '\n' || rest.front() == '\r') {
            typed += text::line_end;
        } else {
            typed += rest.front();
        }
    }
    return typed;
}

std::optional<Letter> letter_to(std::string_view name, std::string_view text,
                                forms::FrmMain const& frmMain)
{
    auto const recipient = lookup(name, frmMain);
    if (recipient == wire::to_nobody) {
        return std::nullopt;
    }
    Letter letter{.asked = std::string(name),
                  .recipient = recipient,
                  .name = name_of(recipient, frmMain),
                  .others = names_that_fit(name, frmMain),
                  .datagram = wire::message(frmMain.user, recipient,
                                            wire::signed_text(frmMain.friendlyname, text))};
    if (!letter.others.empty()) {
        letter.others.erase(letter.others.begin());
    }
    return letter;
}

Letter letter_to_all(std::string_view text, forms::FrmMain const& frmMain)
{
    return {.asked = {},
            .recipient = std::string(wire::to_all),
            .name = name_of(wire::to_all, frmMain),
            .others = {},
            .datagram = wire::message(frmMain.user, wire::to_all,
                                      messaging::text_to_all(frmMain.friendlyname, text))};
}

std::optional<std::vector<Letter>> letters_to_group(std::string_view group, std::string_view text,
                                                    forms::Forms const& forms)
{
    auto const& frmMain = forms.frmMain;
    for (std::string const& row : frmMain.List1.rows()) {
        if (!frmMain.letters.same(forms::group_name(row), group)) {
            continue;
        }
        std::vector<Letter> letters;
        auto const chosen = messaging::chosen_group(row, forms.groups);
        for (std::string const& recipient : messaging::recipients_of(chosen, frmMain)) {
            letters.push_back({.asked = {},
                               .recipient = recipient,
                               .name = name_of(recipient, frmMain),
                               .others = {},
                               .datagram = wire::message(frmMain.user, recipient, text)});
        }
        return letters;
    }
    return std::nullopt;
}

} // namespace tap
