#pragma once

#include "forms/frm_main.h"
#include "forms/others.h"
#include "platform/clock.h"
#include "platform/files.h"

#include <string>
#include <string_view>

namespace records {

/// The log on disk: `logtemp.txt` mirrors the list, and a dated file takes it when it is long or
/// the program ends.
class RollingLog {
public:
    struct Uses {
        forms::FrmMain& frmMain;
        forms::Log& log;
        platform::Clock& clock;
        platform::Files& files;
    };

    /// `folder` is the logs folder.
    RollingLog(Uses uses, std::string folder);

    /// Creates the folder if it is missing. Raises a Failure.
    void make_folder();
    /// Takes up what a run left that did not reach its end: each line of the old mirror becomes a
    /// row. Raises a Failure.
    void recover();
    /// Mirrors the list, or rolls it into a dated file when it has more than 301 rows. Raises a
    /// Failure.
    void cleanlog();
    /// Writes all rows into a dated file. Raises a Failure.
    void write_dated() const { write_rows(dated_path()); }
    /// The end of the run: the closing row, all rows into a dated file, no mirror left. Raises a
    /// Failure.
    void close();

private:
    void add_event(std::string_view event);
    void write_rows(std::string_view path) const;
    void remove_mirror() const;
    [[nodiscard]] std::string dated_path() const;

    Uses uses_;
    std::string folder_;
    std::string mirror_;
};

} // namespace records
