#include "qt/log_binder.h"

namespace qt {

LogBinder::LogBinder(forms::Log& form, QWidget& owner, Codec const& codec, Units const& units)
    : window_(units, &owner), frame_(form.window, window_, codec, units, {.takes_keyboard = true})
{
    frame_.close_by(form.Command2);
    auto& parts = frame_.parts;
    parts.bind(form.lstMessages, window_.lstMessages);
    parts.bind(form.Text1, window_.Text1);
    parts.bind(form.viewlogs, window_.viewlogs);
    parts.bind(form.btnSearchOldLogs, window_.btnSearchOldLogs);
    parts.bind(form.logsave, window_.logsave);
    parts.bind(form.Command1, window_.Command1);
    parts.bind(form.Command2, window_.Command2);
}

} // namespace qt
