#include "records/history.h"

#include "records/history_file.h"
#include "text/colouring.h"
#include "text/failure.h"
#include "text/fields.h"

#include <algorithm>

namespace records {

namespace {

constexpr int most_rows = 100;
constexpr std::size_t kind = 2;
constexpr std::size_t party = 3;
constexpr std::size_t head = 4;
constexpr std::size_t main_text = 5;
constexpr std::size_t answer = 7;
constexpr controls::Colour red{255, 0, 0};
constexpr controls::Colour black{0, 0, 0};

bool is_answered(controls::Table::Row const& row)
{
    return row[kind] == "Auto Rep to" || row[kind] == "Replied to";
}

} // namespace

void History::load()
{
    if (!uses_.files.exists(path_)) {
        return;
    }
    auto const content = uses_.files.read(path_);
    form_.ListView1.clear();
    history_file::Reader reader(content);
    int const count = reader.count();
    auto const options = reader.options();
    form_.ontop.set(options.ontop);
    form_.minmain.set(options.minmain);
    form_.anchor.set(options.anchor);
    mark_options();
    for (int number = 0; number < count; ++number) {
        form_.ListView1.add(reader.row());
    }
    form_.ListView1.show(form_.ListView1.count());
    historyrefresh();
}

void History::save()
{
    if (form_.ListView1.empty()) {
        return; // So the old file stands, and a cleared list comes back at the next start.
    }
    trim();
    uses_.files.write(path_,
                      history_file::written(form_.ListView1, {.ontop = form_.ontop.value(),
                                                              .minmain = form_.minmain.value(),
                                                              .anchor = form_.anchor.value()}));
}

void History::trim()
{
    while (form_.ListView1.count() > most_rows) {
        form_.ListView1.remove(1);
        form_.current = std::max(0, form_.current - 1); // The row in use stays the same one.
    }
}

void History::historyrefresh()
{
    trim();
    form_.current = form_.ListView1.count();
    if (form_.current > 0) {
        show_text();
        colourrow(); // By this way a "To" row ends up red; a click on it shows it black.
    }
}

void History::showrow()
{
    if (form_.ListView1.empty()) {
        return;
    }
    form_.current = form_.ListView1.selected();
    if (form_.current == 0) {
        return;
    }
    show_text();
    if (form_.ListView1.row(form_.current)[kind] != "To") {
        colourrow();
    }
}

void History::show_text()
{
    auto const& row = form_.ListView1.row(form_.current);
    if (row[kind] != "To") {
        form_.message.set_text(row[head] + " " + row[main_text]);
        return;
    }
    auto const& frmMain = uses_.forms.frmMain;
    form_.message.set_text(frmMain.letters.upper(frmMain.friendlyname) + "> " + row[main_text]);
    form_.message.paint_over(black, {}, black);
}

void History::colourrow()
{
    auto const& row = form_.ListView1.row(form_.current);
    auto const& frmMain = uses_.forms.frmMain;
    bool const answered = is_answered(row);
    if (answered) {
        form_.message.set_text(form_.message.text() + std::string(text::line_end) +
                               frmMain.friendlyname + "> " + row[answer]);
    }
    auto const last = answered ? text::LastTurn::to_the_end : text::LastTurn::left_out;
    auto const turns = text::own_turns(form_.message.text(), frmMain.friendlyname, row[party],
                                       frmMain.letters, last);
    form_.message.paint_over(red, turns.own, black);
    if (!turns.other_missing) {
        form_.window.repaint.run();
    }
    form_.message.select(form_.message.text().size(), 0);
}

} // namespace records
