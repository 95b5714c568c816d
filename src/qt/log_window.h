#pragma once

#include "qt/button.h"
#include "qt/framed_window.h"

#include <QListWidget>
#include <QTextEdit>

namespace qt {

/// The log of the run: its rows, and the selected one in three parts. Its parts bear the names of
/// the controls that they show.
class LogWindow : public FramedWindow {
public:
    /// `units` must outlive the window.
    LogWindow(Units const& units, QWidget* owner);

    QListWidget lstMessages;
    QTextEdit Text1;
    Button viewlogs;
    Button btnSearchOldLogs;
    Button logsave;
    Button Command1;
    Button Command2;

private:
    void describe_parts();
    void lay_out();
};

} // namespace qt
