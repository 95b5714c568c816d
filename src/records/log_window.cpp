#include "records/log_window.h"

#include "forms/box_open.h"
#include "platform/saved_texts.h"
#include "text/dates.h"
#include "text/failure.h"
#include "text/fields.h"
#include "text/saved_page.h"

#include <algorithm>
#include <utility>

namespace records {

LogWindow::LogWindow(Uses uses, std::string program_folder)
    : uses_(uses), folder_(std::move(program_folder))
{
    auto& log = uses_.log;
    log.lstMessages.clicked.attach([this] { show_row(); });
    log.window.activated.attach([this] { activated(); });
    log.logsave.clicked.attach([this] { logsave(); });
    log.Command1.clicked.attach([this] { copy_and_print(); });
    log.Command2.clicked.attach([this] { uses_.log.window.hide(); });
    log.viewlogs.clicked.attach([this] { uses_.outside.open_folder(folder_ + "/logs"); });
    log.btnSearchOldLogs.clicked.attach([this] { search_old_logs(); });
}

void LogWindow::activated()
{
    auto& log = uses_.log;
    if (std::exchange(shows_, log.window.shows()) != log.window.shows()) {
        log.lstMessages.choose(log.lstMessages.count() - 1);
    }
}

void LogWindow::show_row()
{
    constexpr std::size_t head_length = 15; // the stamp without its last colon
    constexpr std::size_t stamp_length = 16;
    std::string_view const row = uses_.log.lstMessages.text();
    auto const head = row.substr(0, head_length);
    auto first = row.substr(std::min(stamp_length, row.size()));
    std::string_view second;
    auto const colon = first.find(':');
    if (colon != std::string_view::npos) {
        second =
            first.substr(std::min(colon + 2, first.size())); // One character behind it is lost.
        first = first.substr(0, colon);
    }
    uses_.log.Text1.set_text(std::string(head)
                                 .append(text::line_end)
                                 .append(first)
                                 .append(text::line_end)
                                 .append(second));
}

void LogWindow::logsave()
{
    auto& rows = uses_.log.lstMessages;
    rows.add(text::log_stamp(uses_.clock.now()) + " Log Saved.");
    uses_.rolling_log.write_dated();
    rows.clear();
    // The mirror keeps the old rows until the next one is written.
    rows.add(text::log_stamp(uses_.clock.now()) + " Log Saved and cleared.");
}

void LogWindow::copy_and_print()
{
    try {
        uses_.outside.copy(uses_.log.Text1.text());
        auto const path = platform::savedmessagesfolder(uses_.environment, uses_.files) +
                          "/vexlolog-" + text::file_stamp(uses_.clock.now()) + ".txt";
        uses_.files.write(path, saved_text(path));
        uses_.outside.open_text(path);
    } catch (text::Failure const&) {
        forms::BoxOpen const open(uses_.frmMain);
        uses_.boxes.show({.text = "Cannot create file"});
    }
}

std::string LogWindow::saved_text(std::string_view path) const
{
    auto const now = uses_.clock.now();
    text::SavedPage page;
    page.line("Vexlo IM Log for " + uses_.frmMain.friendlyname + " " + uses_.frmMain.user);
    page.line("Saved : " + text::long_date(now) + " " + text::short_time(now));
    page.rule();
    page.line(uses_.log.Text1.text());
    return page.finished(path);
}

void LogWindow::search_old_logs()
{
    // Whether or not there is a viewer, the window goes.
    text::attempt([this] { uses_.outside.start(folder_ + "/vexlologviewer.exe"); });
    uses_.log.window.hide();
}

} // namespace records
