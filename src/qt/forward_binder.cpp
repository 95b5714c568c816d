#include "qt/forward_binder.h"

namespace qt {

ForwardBinder::ForwardBinder(forms::FwdToFrm& form, QWidget& owner, Codec const& codec,
                             Units const& units)
    : window_(units, &owner), frame_(form.window, window_, codec, units, {.takes_keyboard = true})
{
    frame_.close_by(form.cancelbtn);
    frame_.parts.bind(form.fwdto, window_.fwdto);
    frame_.parts.bind(form.savebtn, window_.savebtn);
    frame_.parts.bind(form.cancelbtn, window_.cancelbtn);
}

} // namespace qt
