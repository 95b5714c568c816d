#pragma once

#include "forms/frm_main.h"
#include "forms/others.h"
#include "forms/settings.h"

namespace messaging {

/// The away switch and everything on show that follows it.
class Away {
public:
    Away(forms::FrmMain& frmMain, forms::MenuForm& menuform, forms::Settings const& settings,
         forms::HistoryFrm& historyfrm);

    /// A person is back: `away` off, the menu's "off" entry checked, the surface in step.
    void switch_off();

    /// Brings the surface in step with `away`: banner, menu caption, history mark, tray.
    void changed();

private:
    void show_on();
    void show_off();

    forms::FrmMain& frmMain_;
    forms::MenuForm& menuform_;
    forms::Settings const& settings_;
    forms::HistoryFrm& historyfrm_;
};

} // namespace messaging
