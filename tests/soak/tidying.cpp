#include "tests/soak/company.h"
#include "tests/soak/habits.h"
#include "tests/soak/roster.h"

#include <array>

/// What people do with the program.
namespace soak {

namespace {

using namespace std::chrono_literals;

template <typename... Ticked>
void change_one_of(Colleague& who, Ticked&... boxes)
{
    std::array const all{&boxes...};
    auto& box = *all.at(static_cast<std::size_t>(who.company.chance.below(all.size())));
    who.peer.person.tick(who.peer.settings().window, box);
}

void close_settings(Colleague& who)
{
    auto& settings = who.peer.settings();
    auto const& button = who.company.happens(70) ? settings.savebtn : settings.cancelbtn;
    who.peer.person.click(settings.window, button);
}

} // namespace

void find_others(Colleague& who)
{
    who.peer.person.choose(who.peer.forms().menuform.toolsmenu, 2);
}

void look_at_history(Colleague& who)
{
    auto& history = who.peer.forms().historyfrm;
    who.peer.person.click(who.main().history);
    if (!history.ListView1.empty()) {
        auto const rows = static_cast<std::uint64_t>(history.ListView1.count());
        who.peer.person.double_click_history(1 + static_cast<int>(who.company.chance.below(rows)));
    }
    auto& recalled = who.peer.forms().popuplast;
    if (recalled.window.visible()) {
        who.peer.person.click(recalled, recalled.Command1);
    }
    who.peer.person.click(history.window, history.closebtn);
    who.peer.person.open_tab(0);
    who.peer.person.click(who.main().Command3);
}

void clear_history(Colleague& who)
{
    auto& history = who.peer.forms().historyfrm;
    who.peer.person.click(who.main().history);
    who.peer.boxes.will_answer(platform::Answer::yes).after(20s);
    who.peer.person.choose(history.mnuoptions, 4);
    who.cleared_history = true;
    who.peer.person.click(history.window, history.closebtn);
}

void look_at_log(Colleague& who)
{
    auto& log = who.peer.forms().log;
    who.peer.person.choose(who.peer.forms().menuform.toolsmenu, 8);
    who.peer.person.turn_to(log.window);
    who.company.pass(10s);
    if (!log.lstMessages.empty()) {
        who.peer.person.click_row(log.window, log.lstMessages, 0);
    }
    who.peer.person.click(log.window, log.Command2);
}

void clear_log(Colleague& who)
{
    if (who.bad_disk) {
        return; // It would be the end of the program.
    }
    auto& log = who.peer.forms().log;
    who.peer.person.choose(who.peer.forms().menuform.toolsmenu, 8);
    who.peer.person.click(log.window, log.logsave);
    who.peer.person.click(log.window, log.Command2);
}

void hide_main_window(Colleague& who)
{
    who.peer.person.click(who.main().spotmin);
}

void change_settings(Colleague& who)
{
    who.in_settings([&](forms::Settings& settings) {
        who.company.pass(20s);
        change_one_of(who, settings.soundon, settings.replytoall, settings.myown, settings.ontop,
                      settings.userlistfont, settings.entersend, settings.hidetip,
                      settings.autocheckusers, settings.autoreply);
        who.peer.person.fill(settings.window, settings.ar[1], who.company.new_text().substr(0, 4));
        who.peer.person.fill(settings.window, settings.qsendtext[3], who.company.new_text());
        close_settings(who);
    });
}

void change_name(Colleague& who)
{
    who.in_settings([&](forms::Settings& settings) {
        bool const has_other = who.name() == roster::other_name(who.number);
        auto const name = has_other ? roster::name(who.number) : roster::other_name(who.number);
        who.names.insert(name);
        who.peer.boxes.will_enter(name).after(10s);
        who.peer.person.click(settings.window, settings.Command1);
        close_settings(who);
    });
}

void clean_directory(Colleague& who)
{
    who.in_settings([&](forms::Settings& settings) {
        who.peer.person.click(settings.window, settings.autoclean);
        who.peer.person.click(settings.window, settings.savebtn);
    });
}

void press_everything_in_vain(Colleague& who)
{
    who.peer.person.pick_nobody();
    who.peer.person.click(who.main().sendbtn);
    who.peer.person.click(who.main().recall);
    who.peer.person.click(who.main().Command3);
    who.peer.person.press_enter();
    who.peer.person.click(who.main().Command3);
}

} // namespace soak
