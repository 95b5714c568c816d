#include "records/rolling_log.h"

#include "text/dates.h"
#include "text/fields.h"

namespace records {

namespace {

constexpr int last_index_kept = 300;

} // namespace

RollingLog::RollingLog(Uses uses, std::string folder)
    : uses_(uses), folder_(std::move(folder)), mirror_(folder_ + "/logtemp.txt")
{
    uses_.frmMain.cleanlog.attach([this] { cleanlog(); });
}

void RollingLog::make_folder()
{
    if (!uses_.files.exists(folder_)) {
        uses_.files.make_folder(folder_);
    }
}

void RollingLog::add_event(std::string_view event)
{
    uses_.log.lstMessages.add(text::log_stamp(uses_.clock.now()) + std::string(event) +
                              "\t\r\n---");
}

void RollingLog::recover()
{
    if (!uses_.files.exists(mirror_)) {
        return;
    }
    // The words say the opposite of what happened; they are what stands in every office's logs.
    add_event("Vexlo IM shutdown correctly.");
    text::for_each_line(uses_.files.read(mirror_),
                        [this](std::string_view line) { uses_.log.lstMessages.add(line); });
    uses_.files.remove(mirror_);
}

void RollingLog::cleanlog()
{
    if (uses_.log.lstMessages.count() - 1 <= last_index_kept) {
        write_rows(mirror_);
        return;
    }
    write_rows(dated_path());
    uses_.log.lstMessages.clear();
    remove_mirror();
}

void RollingLog::close()
{
    add_event("Vexlo IM Closed.");
    write_rows(dated_path());
    uses_.log.lstMessages.clear();
    remove_mirror();
}

void RollingLog::remove_mirror() const
{
    // There is none when what a run left behind is long enough to roll at once.
    if (uses_.files.exists(mirror_)) {
        uses_.files.remove(mirror_);
    }
}

void RollingLog::write_rows(std::string_view path) const
{
    auto const& rows = uses_.log.lstMessages;
    std::size_t size = 0;
    for (int index = 0; index < rows.count(); ++index) {
        size += rows.row(index).size() + text::line_end.size();
    }
    std::string content;
    content.reserve(size);
    for (int index = 0; index < rows.count(); ++index) {
        content.append(rows.row(index)).append(text::line_end);
    }
    uses_.files.write(path, content);
}

std::string RollingLog::dated_path() const
{
    return folder_ + "/log" + text::file_stamp(uses_.clock.now()) + ".txt";
}

} // namespace records
