#pragma once

#include "forms/frm_main.h"
#include "forms/settings.h"

#include <cstddef>

namespace messaging {

/// The short ways to the send button: the keys of the compose box, and the twelve quick buttons
/// with their stored messages.
class Shortcuts {
public:
    Shortcuts(forms::FrmMain& frmMain, forms::Settings const& settings);
    Shortcuts(Shortcuts const&) = delete;
    Shortcuts& operator=(Shortcuts const&) = delete;

private:
    void key_up(controls::Key key);
    void quick_button(std::size_t number);

    forms::FrmMain& frmMain_;
    forms::Settings const& settings_;
};

} // namespace messaging
