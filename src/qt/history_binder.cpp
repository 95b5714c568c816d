#include "qt/history_binder.h"

namespace qt {

HistoryBinder::HistoryBinder(forms::HistoryFrm& form, Codec const& codec, Units const& units)
    : window_(units), mnuoptions_(form.mnuoptions, QStringLiteral("mnuoptions"), codec, window_),
      frame_(form.window, window_, codec, units, {.takes_keyboard = true, .knows_its_place = true})
{
    frame_.close_by(form.closebtn);
    frame_.show_more = [this] { mnuoptions_.show(); };
    auto& parts = frame_.parts;
    parts.bind(form.ListView1, window_.ListView1);
    parts.bind(form.message, window_.message);
    parts.bind(form.autores, window_.autores);
    parts.bind(form.showmain, window_.showmain);
    parts.bind(form.optionsbtn, window_.optionsbtn);
    parts.bind(form.searchlogs, window_.searchlogs);
    parts.bind(form.closebtn, window_.closebtn);
    parts.bind(form.ontop, window_.ontop);
    parts.bind(form.minmain, window_.minmain);
    parts.bind(form.anchor, window_.anchor);
    parts.bind(form.wasopen, window_.wasopen);
}

} // namespace qt
