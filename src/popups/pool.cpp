#include "popups/pool.h"

#include "text/failure.h"
#include "text/numbers.h"

#include <string>

namespace popups {

namespace {

constexpr int slots = 10;
constexpr std::string_view mark = "-"; // a free slot in `popups`, a busy one in `wins`

std::string_view last_character(std::string_view row)
{
    return row.substr(row.empty() ? 0 : row.size() - 1);
}

} // namespace

Pool::Pool(forms::Forms& forms, platform::Clock const& clock) : forms_(forms), clock_(clock)
{
    auto& frmMain = forms_.frmMain;
    frmMain.pucount.changed.attach([this] { show_tray(); });
    frmMain.recountpopups.attach([this] { recountpopups(); });
    frmMain.dissmissall.clicked.attach([this] { dissmissall(); });
    frmMain.recall.clicked.attach([this] { recall(); });
}

void Pool::start()
{
    refill_tables();
    recountpopups();
}

void Pool::refill_tables()
{
    auto& frmMain = forms_.frmMain;
    frmMain.popups.clear();
    frmMain.wins.clear();
    for (int slot = 0; slot < slots; ++slot) {
        frmMain.popups.add(mark);
        frmMain.wins.add(std::to_string(slot));
    }
}

void Pool::open(Arrival const& message)
{
    int const slot = take_slot();
    auto& wins = forms_.frmMain.wins;
    text::attempt([&] { wins.remove(slot); });
    text::attempt([&] { wins.insert(slot, mark); });
    fill(forms_.popup.at(static_cast<std::size_t>(slot)), slot, message);
}

int Pool::take_slot()
{
    auto& popups = forms_.frmMain.popups;
    auto const& wins = forms_.frmMain.wins;
    for (int free = slots - 1; free >= 0; --free) {
        if (popups.row(free) != mark) {
            continue;
        }
        popups.remove(free);
        for (int slot = 0; slot < slots; ++slot) {
            if (wins.row(slot) != mark) {
                return slot;
            }
        }
        return free; // The tables disagree; the message opens all the same.
    }
    // All busy: the oldest message's window is taken over, text and all.
    int const oldest = text::leading_whole_number(last_character(popups.row(0)));
    text::attempt([&] { popups.remove(0); });
    return oldest;
}

void Pool::fill(forms::Popup& popup, int slot, Arrival const& message)
{
    auto const now = clock_.now();
    auto const name = forms_.frmMain.letters.proper(message.sender);
    popup.punumber = std::to_string(slot);
    forms_.frmMain.popups.add(text::file_stamp(now) + "popup" + popup.punumber);
    popup.messagefrom.set_caption(name);
    popup.message.set_text(message.text);
    popup.window.caption = name + " Msg " + text::caption_time(now);
    // Neither has an else: a window that is taken over keeps its note and its tick.
    if (message.recipient == "[ALL]") {
        popup.Label3.set_caption("(Sent to ALL)");
    }
    if (forms_.settings.replytoall.on()) {
        popup.Check1.set(1);
    }
    popup.temp.set_text("");
    text::attempt([&] { popup.colourmessage.run(); });
    popup.window.show();
}

void Pool::freepopupslot(std::string_view slot)
{
    auto& frmMain = forms_.frmMain;
    int const number = text::leading_whole_number(slot);
    for (int index = 0; index < slots; ++index) {
        auto const digit = last_character(frmMain.popups.row(index));
        if (digit != mark && text::leading_whole_number(digit) == number) {
            // A row that is gone reads as slot 0 too; its removal is refused, and that is ignored.
            text::attempt([&] { frmMain.popups.remove(index); });
        }
    }
    frmMain.popups.add(mark);
    text::attempt([&] { frmMain.wins.remove(number); });
    text::attempt([&] { frmMain.wins.insert(number, std::to_string(number)); });
    recountpopups();
}

void Pool::recountpopups()
{
    auto& frmMain = forms_.frmMain;
    int free = 0;
    frmMain.pucount.set_caption("0");
    for (int index = 0; index < slots; ++index) {
        if (frmMain.popups.row(index) == mark) {
            frmMain.pucount.set_caption(std::to_string(++free));
        }
    }
    auto& close_all = forms_.menuform.closepopups[0];
    close_all.enabled = free != slots;
    if (close_all.enabled) {
        frmMain.dissmissall.enabled =
            true; // Nothing disables it again: it stays live and harmless.
    }
}

void Pool::show_tray()
{
    // The away state is not looked at: closing the last popup while away shows the normal icon.
    bool const all_free = text::leading_whole_number(forms_.frmMain.pucount.caption()) >= slots;
    (all_free ? forms_.menuform.Command2 : forms_.menuform.Command1).run();
}

void Pool::dissmissall()
{
    for (int slot : {1, 2, 3, 4, 5, 6, 7, 8, 9, 0}) {
        forms_.popup.at(static_cast<std::size_t>(slot)).window.hide();
    }
    forms_.popuplast.window.hide();
    refill_tables();
    for (forms::Popup& popup : forms_.popup) {
        popup.Label3.set_caption("");
    }
    for (forms::Popup& popup : forms_.popup) {
        popup.response.clear();
        popup.message.set_text("");
    }
    recountpopups();
}

void Pool::recall()
{
    if (!forms_.popuplast.message.empty()) {
        forms_.popuplast.window.show();
    }
}

} // namespace popups
