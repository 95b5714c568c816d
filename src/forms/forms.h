#pragma once

#include "forms/frm_main.h"
#include "forms/fwd_to_frm.h"
#include "forms/groups.h"
#include "forms/others.h"
#include "forms/popup.h"
#include "forms/settings.h"
#include "text/character_set.h"

#include <array>

namespace forms {

/// Every long-lived object of one running program.
struct Forms {
    /// `letters` must outlive the forms.
    explicit Forms(text::CharacterSet const& letters);
    Forms(Forms const&) = delete;
    Forms& operator=(Forms const&) = delete;

    FrmMain frmMain;
    Settings settings;
    Groups groups;
    Log log;
    HistoryFrm historyfrm;
    MenuForm menuform;
    Loading loading;
    FwdToFrm fwdtofrm;
    std::array<Popup, 10> popup; ///< popup0 to popup9
    Popup popuplast;

    /// Calls `visit` with the ten popups and the recall window.
    template <typename Visit>
    void for_each_popup(Visit&& visit)
    {
        for (Popup& window : popup) {
            visit(window);
        }
        visit(popuplast);
    }
};

} // namespace forms
