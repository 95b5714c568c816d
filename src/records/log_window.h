#pragma once

#include "forms/frm_main.h"
#include "forms/others.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "records/rolling_log.h"

#include <string>
#include <string_view>

namespace records {

/// The window of the log: the selected row in full, saving, and the logs folder.
class LogWindow {
public:
    struct Uses {
        forms::FrmMain& frmMain;
        forms::Log& log;
        RollingLog& rolling_log;
        platform::Boxes& boxes;
        platform::Clock const& clock;
        platform::Environment const& environment;
        platform::Files& files;
        platform::Outside& outside;
    };

    /// `program_folder` is the folder of the executable.
    LogWindow(Uses uses, std::string program_folder);
    LogWindow(LogWindow const&) = delete;
    LogWindow& operator=(LogWindow const&) = delete;

    /// Moves to the last row when the window has come up, and not when it is active again behind a
    /// box.
    void activated();
    /// Shows the selected row in three parts.
    void show_row();
    /// Moves all rows to a dated file, and says so in two rows. Raises a Failure.
    void logsave();
    /// Copies the selected row, writes it to a text file of the user's, and opens that.
    void copy_and_print();

private:
    [[nodiscard]] std::string saved_text(std::string_view path) const;
    void search_old_logs();

    Uses uses_;
    std::string folder_;
    unsigned shows_ = 0; ///< of the window, when it was last activated
};

} // namespace records
