#include "sim/person.h"

#include "sim/peer.h"
#include "text/fields.h"

#include <string>
#include <vector>

namespace sim {

namespace {

constexpr int groups_tab = 1;

void insert(controls::TextBox& box, std::string_view words)
{
    auto const caret = box.selection_start();
    auto text = box.text();
    text.replace(caret, box.selection_length(), words);
    box.set_text(text);
    box.select(caret + words.size(), 0);
}

controls::Key enter_key(Person::With held)
{
    return {.code = controls::Key::enter,
            .mask = held == Person::With::ctrl ? controls::Key::ctrl : 0};
}

int index_of(controls::ListBox const& list, std::string_view row)
{
    for (int index = 0; index < list.count(); ++index) {
        if (list.row(index) == row) {
            return index;
        }
    }
    return controls::ListBox::none;
}

} // namespace

void Person::type(std::string_view text)
{
    require_main_window();
    auto& draft = peer_.frmMain().messagetext;
    require(draft.visible && draft.enabled, "type");
    peer_.enter([&] {
        draft.focus.got.run();
        for (std::size_t place = 0; place < text.size(); ++place) {
            insert(draft, text.substr(place, 1));
        }
    });
}

void Person::put_caret(std::size_t place)
{
    require_main_window();
    peer_.frmMain().messagetext.select(place, 0);
}

void Person::press_enter(With held)
{
    require_main_window();
    auto& draft = peer_.frmMain().messagetext;
    peer_.enter([&] {
        insert(draft, text::line_end);
        draft.key_up(enter_key(held));
    });
}

void Person::press_key(int code)
{
    require_main_window();
    peer_.enter([&] { peer_.frmMain().messagetext.key_up({.code = code, .mask = 0}); });
}

void Person::pick(std::initializer_list<std::string_view> names)
{
    require_main_window();
    auto& list = peer_.frmMain().allusers;
    require(list.visible && list.enabled, "pick a user");
    std::vector<int> rows;
    int mark = list.index();
    for (std::string_view const name : names) {
        mark = index_of(list, name);
        require(mark != controls::ListBox::none, "pick " + std::string(name));
        rows.push_back(mark);
    }
    peer_.enter([&] { list.choose_many(rows, mark); });
}

void Person::open_tab(int tab)
{
    require_main_window();
    peer_.enter([&] { peer_.frmMain().SSTab1.choose(tab); });
}

void Person::pick_group(std::string_view name)
{
    require_main_window();
    auto& list = peer_.frmMain().List1;
    require(list.visible && list.enabled, "pick a group");
    require(peer_.frmMain().SSTab1.tab() == groups_tab, "pick a group on the other tab");
    for (int index = 0; index < list.count(); ++index) {
        if (list.row(index).starts_with(std::string(name) + std::string(30, ' '))) {
            peer_.enter([&] { list.choose(index); });
            return;
        }
    }
    require(false, "pick the group " + std::string(name));
}

void Person::tick_all()
{
    require_main_window();
    auto& box = peer_.frmMain().Checkallusers;
    require(box.visible && box.enabled, "tick the box");
    peer_.enter([&] { box.set(box.on() ? 0 : 1); });
}

void Person::click(controls::Button const& button)
{
    require_main_window();
    require(button.visible && button.enabled, "click " + button.caption);
    peer_.enter([&] { button.click(); });
}

void Person::click(controls::Window const& window, controls::Button const& button)
{
    require_window(window);
    require(button.visible && button.enabled, "click " + button.caption);
    peer_.enter([&] { button.click(); });
}

void Person::click_row(controls::Window const& window, controls::ListBox& list, int index)
{
    require_window(window);
    require(list.visible && list.enabled && index >= 0 && index < list.count(), "click that row");
    peer_.enter([&] { list.choose(index); });
}

void Person::tick(controls::Window const& window, controls::CheckBox& box)
{
    require_window(window);
    require(box.visible && box.enabled, "tick " + box.caption);
    peer_.enter([&] { box.set(box.on() ? 0 : 1); });
}

void Person::fill(controls::Window const& window, controls::TextBox& box, std::string_view text)
{
    require_window(window);
    require(box.visible && box.enabled, "fill that box");
    peer_.enter([&] {
        box.focus.got.run();
        box.select(0, box.length());
        insert(box, "");
        for (std::size_t place = 0; place < text.size(); ++place) {
            insert(box, text.substr(place, 1));
        }
    });
}

void Person::turn_to(controls::Window const& window)
{
    require_window(window);
    peer_.enter([&] { window.activated.run(); });
}

void Person::type_reply(forms::Popup& popup, std::string_view text)
{
    turn_to(popup.window);
    require(popup.temp.visible && popup.temp.enabled, "write a reply");
    peer_.enter([&] {
        for (std::size_t place = 0; place < text.size(); ++place) {
            insert(popup.temp, text.substr(place, 1));
        }
    });
}

void Person::press_enter_in(forms::Popup& popup, With held)
{
    require_window(popup.window);
    peer_.enter([&] {
        insert(popup.temp, text::line_end);
        popup.temp.key_up(enter_key(held));
    });
}

void Person::pick_history(int number)
{
    auto& history = peer_.forms().historyfrm;
    require_window(history.window);
    require(number >= 1 && number <= history.ListView1.count(), "see that row");
    peer_.enter([&] { history.ListView1.choose(number); });
}

void Person::double_click_history(int number)
{
    pick_history(number); // The first of the two clicks.
    peer_.enter([&] { peer_.forms().historyfrm.ListView1.double_clicked.run(); });
}

void Person::choose(controls::Menu const& menu, std::size_t entry)
{
    require(peer_.boxes.open() == 0, "open a menu");
    require(menu[entry].visible && menu[entry].enabled, "choose " + menu[entry].caption);
    peer_.enter([&] { menu.choose(entry); });
}

void Person::send(std::string_view text)
{
    type(text);
    click(peer_.frmMain().sendbtn);
}

void Person::send_to(std::string_view name, std::string_view text)
{
    pick(name);
    send(text);
}

void Person::answer(forms::Popup& popup, std::string_view text)
{
    type_reply(popup, text);
    click(popup, popup.Command2);
}

void Person::leave()
{
    peer_.boxes.will_answer(platform::Answer::no);
    click(peer_.frmMain().spotx);
}

void Person::require_main_window() const
{
    require(peer_.running(), "use a program that has ended");
    require(peer_.boxes.open() == 0, "reach the window behind a box");
    require_nothing_modal_before(peer_.frmMain().window);
    require(peer_.frmMain().window.visible(), "see the main window");
}

void Person::require_window(controls::Window const& window) const
{
    require(peer_.running(), "use a program that has ended");
    require(window.visible() && peer_.boxes.open() == 0, "reach that window");
    require_nothing_modal_before(window);
}

void Person::require_nothing_modal_before(controls::Window const& window) const
{
    auto const& forms = peer_.forms();
    // The innermost first: the forward dialog belongs to the settings window.
    for (auto const* const modal :
         {&forms.fwdtofrm.window, &forms.settings.window, &forms.groups.window}) {
        if (modal->modal && modal->visible()) {
            require(modal == &window, "reach a window behind " + modal->caption);
            return;
        }
    }
}

void Person::require(bool possible, std::string_view what) const
{
    if (!possible) {
        throw Impossible(peer_.host.name + ": nobody can " + std::string(what));
    }
}

} // namespace sim
