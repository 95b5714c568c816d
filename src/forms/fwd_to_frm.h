#pragma once

#include "controls/basic.h"
#include "controls/list_box.h"
#include "controls/window.h"

namespace forms {

/// The dialog that names who messages are forwarded to.
struct FwdToFrm {
    controls::Window window{3600, 4200};
    controls::ListBox fwdto; ///< "None", then the names, in the order of the recipients' list
    controls::Button savebtn{"Save"};
    controls::Button cancelbtn{"Cancel"};
};

} // namespace forms
