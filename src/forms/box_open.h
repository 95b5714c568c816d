#pragma once

#include "forms/frm_main.h"

namespace forms {

/// Every box obeys one rule: set `boxopen`, show the box, clear `boxopen`, and wake the queue if
/// rows wait. The flag is plain, not a counter: the end of an inner box clears it under an outer
/// one.
class BoxOpen {
public:
    explicit BoxOpen(FrmMain& frmMain) : frmMain_(frmMain) { frmMain_.boxopen.set(1); }
    ~BoxOpen()
    {
        frmMain_.boxopen.set(0);
        if (!frmMain_.cue.empty()) {
            frmMain_.Timer3.enable();
        }
    }
    BoxOpen(BoxOpen const&) = delete;
    BoxOpen& operator=(BoxOpen const&) = delete;

private:
    FrmMain& frmMain_;
};

} // namespace forms
