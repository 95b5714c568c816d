#include "records/history.h"
#include "text/failure.h"
#include "text/numbers.h"

#include <utility>

namespace records {

namespace {

constexpr std::size_t kind = 2;
constexpr std::size_t party = 3;
constexpr std::size_t head = 4;
constexpr std::size_t main_text = 5;
constexpr std::size_t recipient = 6;
constexpr std::size_t seventh = 7; ///< the answer, or the tab of a sent row
constexpr std::size_t list_place = 8;
constexpr std::size_t caption = 9;
constexpr int users_tab = 0;
constexpr int groups_tab = 1;

using State = controls::Window::State;

} // namespace

History::History(Uses uses, std::string path)
    : uses_(uses), form_(uses.forms.historyfrm), path_(std::move(path))
{
    form_.loadbtn.attach([this] { load(); });
    form_.savebtn.attach([this] { save(); });
    form_.historyrefresh.attach([this] { historyrefresh(); });
    form_.showrow.attach([this] { showrow(); });
    form_.anchorwindow.attach([this] { anchorwindow(); });
    attach_window();
}

void History::attach_window()
{
    form_.ListView1.clicked.attach([this] { showrow(); });
    form_.ListView1.double_clicked.attach([this] { double_clicked(); });
    form_.optionsbtn.clicked.attach([this] { form_.mnuoptions.pop_up(); });
    form_.mnuoptions.chosen = [this](std::size_t entry) { choose_option(entry); };
    form_.ontop.clicked.attach([this] { stack(); });
    form_.anchor.clicked.attach([this] { anchorwindow(); });
    form_.showmain.clicked.attach([this] { toggle_main(); });
    form_.closebtn.clicked.attach([this] { close(); });
    form_.window.activated.attach([this] {
        form_.wasopen.set(1);
        form_.ListView1.focus.set();
    });
    uses_.forms.frmMain.window.moved.attach([this] { anchorwindow(); });
    uses_.forms.frmMain.history.clicked.attach([this] { open(); });
    uses_.forms.menuform.showhistory.attach([this] { form_.window.show(); });
}

void History::open()
{
    form_.window.state = State::normal;
    form_.showmain.caption = "Hide Main";
    anchorwindow();
    form_.window.show();
}

void History::anchorwindow()
{
    if (!form_.anchor.on() || form_.window.state == State::minimised) {
        return;
    }
    auto& main = uses_.forms.frmMain.window;
    auto& own = form_.window;
    float const left = main.left + main.width - own.width;
    own.place(left, own.top);
    if (left < 1) {
        return; // Too far to the left to dock below: it keeps its height.
    }
    float const below = main.top + main.height;
    own.place(left, below);
    if (below + own.height > uses_.screen.height()) {
        own.place(left, main.top - own.height);
    }
    if (main.top < 1) {
        main.place(main.left, 0);
        own.place(left, main.height);
    }
}

void History::recallrow()
{
    auto const& row = form_.ListView1.row(form_.current);
    auto& window = uses_.forms.popuplast;
    window.punumber = "10";
    window.messagefrom.set_caption(row[party]);
    window.temp.set_text(row[seventh]);
    window.message.set_text(row[head] + " " + row[main_text]);
    window.window.caption = "Msg" + row[caption];
    if (row[recipient] == "[ALL]") {
        window.Label3.set_caption("(Sent to ALL)");
    }
    window.Check1.set(uses_.forms.settings.replytoall.on() ? 1 : 0);
    window.colourmessage.run();
    if (!window.message.empty()) {
        window.window.show();
    }
}

void History::double_clicked()
{
    if (form_.ListView1.empty() || form_.current == 0) {
        return;
    }
    auto const& what = form_.ListView1.row(form_.current)[kind];
    if (what == "To") {
        recall_to_compose_box();
    } else if (what == "From" || what == "Auto Rep to" || what == "Replied to") {
        uses_.forms.popuplast.beensent.visible = what != "From";
        recallrow();
    }
}

void History::recall_to_compose_box()
{
    auto& frmMain = uses_.forms.frmMain;
    auto const row = form_.ListView1.row(form_.current);
    if (frmMain.minimized == "yes") {
        show_main();
    }
    frmMain.messagetext.set_text(row[main_text]);
    auto const tab = text::leading_number(row[seventh]);
    if (tab == users_tab) {
        frmMain.SSTab1.choose(users_tab);
        recall_user(row[party]);
    } else if (tab == groups_tab) {
        frmMain.SSTab1.choose(groups_tab);
        recall_group(row[list_place]);
    }
}

void History::recall_user(std::string_view name)
{
    auto& users = uses_.forms.frmMain.allusers;
    for (int index = 0; index < users.count(); ++index) {
        users.select(index, false);
    }
    for (int index = 0; index < users.count(); ++index) {
        if (users.row(index) == name) {
            users.select(index, true); // Behind all others, so that the list's mark stands here.
        }
    }
}

void History::recall_group(std::string_view place)
{
    auto& groups = uses_.forms.frmMain.List1;
    groups.choose(controls::ListBox::none);
    text::attempt([&] { groups.choose(text::leading_whole_number(place)); });
}

void History::choose_option(std::size_t entry)
{
    switch (entry) {
    case 0:
        toggle(entry, form_.ontop);
        break;
    case 1:
        toggle(entry, form_.minmain);
        break;
    case 2:
        toggle(entry, form_.anchor);
        break;
    case 4:
        clear();
        break;
    case 5:
        save();
        break;
    default:
        break;
    }
}

void History::toggle(std::size_t entry, controls::CheckBox& option)
{
    auto& mark = form_.mnuoptions[entry].checked;
    mark = !mark;
    option.set(option.on() ? 0 : 1);
}

void History::mark_options()
{
    form_.mnuoptions[0].checked = form_.ontop.on();
    form_.mnuoptions[1].checked = form_.minmain.on();
    form_.mnuoptions[2].checked = form_.anchor.on();
}

void History::clear()
{
    auto& boxopen = uses_.forms.frmMain.boxopen;
    boxopen.set(1);
    auto const answer = uses_.boxes.show(
        {.text = "Are you sure?", .title = "Clear History", .buttons = platform::Buttons::yes_no});
    boxopen.set(1); // Not cleared, on either answer: rows wait until the next box closes.
    if (answer != platform::Answer::no) {
        form_.ListView1.clear();
        form_.message.set_text("");
    }
}

void History::stack()
{
    using Stacking = controls::Window::Stacking;
    form_.window.stacking = form_.ontop.on() ? Stacking::on_top : Stacking::at_the_bottom;
    form_.window.repaint.run();
}

void History::show_main()
{
    auto& frmMain = uses_.forms.frmMain;
    frmMain.window.state = State::normal;
    frmMain.window.show();
    frmMain.minimized = "no";
    form_.showmain.caption = "Hide Main";
}

void History::toggle_main()
{
    auto& frmMain = uses_.forms.frmMain;
    if (form_.showmain.caption == "Show Main") {
        show_main();
    } else {
        frmMain.minimized = "yes";
        form_.showmain.caption = "Show Main";
        frmMain.window.state = State::minimised;
        frmMain.window.hide();
    }
}

void History::close()
{
    form_.wasopen.set(0);
    form_.window.hide();
}

} // namespace records
