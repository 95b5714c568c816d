#include "network/directory.h"
#include "network/wire.h"
#include "tests/soak/company.h"
#include "tests/soak/habits.h"
#include "tests/soak/roster.h"

#include <algorithm>

/// What people do with their messages.
namespace soak {

namespace {

void write_to(Colleague& who, std::vector<std::string> const& names)
{
    auto const text = who.company.new_text();
    who.pick(names);
    who.peer.person.send(text);
    who.has_written(names, text);
}

/// A forward goes out in the name of its first sender: one who is away, and one who is away and
/// gets it, would answer each other without end.
bool is_away(Company& company, std::string_view name)
{
    return std::ranges::any_of(company.colleagues, [name](Colleague& each) {
        auto const wanted = each.main().letters.upper(name);
        return each.running() && each.main().away.on() && each.names.contains(wanted);
    });
}

/// Who is away drops what begins with ":RE:", and an answer begins with what it quotes. A sender
/// whom a cleaned directory does not know yet gets nothing.
bool is_heard(Colleague& who, forms::Popup const& popup)
{
    auto const& main = who.main();
    auto const& sender = popup.messagefrom.caption();
    return !popup.message.text().starts_with(":RE:") &&
           network::lookupuser(sender, main.userlist, main.letters) != network::wire::to_nobody;
}

bool may_go(Colleague& who)
{
    // Two who are away answer each other without end, so nothing may wait for who goes.
    return who.main().cue.empty() && !who.main().boxopen.on() && !who.stuck;
}

} // namespace

void write_to_somebody(Colleague& who)
{
    auto others = who.others();
    if (!others.empty()) {
        write_to(who, {who.company.one_of(others)});
    }
}

void write_to_several(Colleague& who)
{
    auto const others = who.others();
    if (others.size() > 2) {
        auto const first = who.company.chance.below(others.size() - 2);
        write_to(who, {others[first], others[first + 1], others[first + 2]});
    }
}

void write_to_all(Colleague& who)
{
    auto const text = who.company.new_text();
    who.peer.person.tick_all();
    who.peer.person.send(text);
    who.has_written(who.others(), text);
}

void write_to_the_group(Colleague& who)
{
    who.peer.person.open_tab(1);
    who.peer.person.pick_group(roster::group);
    who.peer.person.send(who.company.new_text());
    who.peer.person.open_tab(0);
}

void press_quick_button(Colleague& who)
{
    auto others = who.others();
    auto const& button = who.main().qb.at(1 + who.company.chance.below(12));
    if (others.empty() || !button.visible || !button.enabled) {
        return;
    }
    who.pick({who.company.one_of(others)});
    who.peer.person.click(button);
    who.peer.person.click(who.main().sendbtn);
}

void answer(Colleague& who)
{
    auto shown = who.popups();
    if (shown.empty()) {
        return write_to_somebody(who);
    }
    auto& popup = *who.company.one_of(shown);
    who.peer.person.turn_to(popup.window);
    if (popup.Check1.visible && who.company.happens(20)) {
        who.peer.person.tick(popup.window, popup.Check1);
    }
    auto const sender = popup.messagefrom.caption();
    bool const arrives = is_heard(who, popup);
    bool const to_all = popup.Check1.on() && !popup.Label3.caption().empty();
    auto const text = who.company.new_text();
    who.peer.person.answer(popup, text);
    if (!to_all && arrives) {
        who.has_written({sender}, text);
    }
}

void answer_by_button(Colleague& who)
{
    auto shown = who.popups();
    if (shown.empty()) {
        return;
    }
    auto& popup = *who.company.one_of(shown);
    auto const& button = who.company.one_of(popup.qb);
    if (button.visible && button.enabled) {
        who.peer.person.click(popup, button);
    }
}

void forward(Colleague& who)
{
    auto shown = who.popups();
    auto others = who.others();
    if (shown.empty() || others.empty()) {
        return;
    }
    auto& popup = *who.company.one_of(shown);
    if (is_away(who.company, popup.messagefrom.caption())) {
        return;
    }
    who.peer.person.click(popup, popup.fwd);
    who.pick({who.company.one_of(others)});
    auto const& button = who.company.happens(80) ? who.main().sendbtn : who.main().Command3;
    who.peer.person.click(button);
}

void close_one(Colleague& who)
{
    auto shown = who.popups();
    if (!shown.empty()) {
        auto& popup = *who.company.one_of(shown);
        who.peer.person.click(popup, popup.Command1);
    }
}

void close_all(Colleague& who)
{
    if (who.main().dissmissall.enabled) {
        who.peer.person.click(who.main().dissmissall);
    }
}

void go_away(Colleague& who)
{
    who.company.calm();
    auto const& menu = who.peer.forms().menuform.autores;
    auto const response = static_cast<std::size_t>(who.company.chance.below(4));
    if (who.turns_to_the_program() && may_go(who) && menu[response].visible) {
        who.note("is away");
        who.peer.person.choose(menu, response);
    }
}

void come_back(Colleague& who)
{
    constexpr std::size_t off = 4;
    if (who.turns_to_the_program() && who.main().away.on()) {
        who.note("is back");
        who.peer.person.choose(who.peer.forms().menuform.autores, off);
    }
}

} // namespace soak
