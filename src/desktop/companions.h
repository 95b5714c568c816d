#pragma once

#include "forms/frm_main.h"
#include "platform/processes.h"

#include <string_view>

namespace desktop {

/// Programs that stand beside this one.
class Companions {
public:
    Companions(forms::FrmMain& frmMain, platform::Processes& processes);

    /// Ends every process whose executable's name ends in `NameProcess`, in any case. An empty name
    /// ends none.
    void KillProcess(std::string_view NameProcess);

private:
    forms::FrmMain& frmMain_;
    platform::Processes& processes_;
};

} // namespace desktop
