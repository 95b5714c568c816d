#pragma once

/// The parts of the windows that the scenes touch, by what they are for.
namespace demo {

struct Control {
    char const* window;
    char const* name;
};

namespace main_window {
inline constexpr Control users{"frmMain", "allusers"};
inline constexpr Control groups{"frmMain", "List1"};
inline constexpr Control tabs{"frmMain", "SSTab1"};
inline constexpr Control to_everybody{"frmMain", "Checkallusers"};
inline constexpr Control draft{"frmMain", "messagetext"};
inline constexpr Control send{"frmMain", "sendbtn"};
inline constexpr Control clear{"frmMain", "Command3"};
inline constexpr Control options{"frmMain", "options"};
inline constexpr Control away{"frmMain", "autorespond"};
inline constexpr Control history{"frmMain", "history"};
inline constexpr Control last_message{"frmMain", "recall"};
inline constexpr Control close_popups{"frmMain", "dissmissall"};
inline constexpr Control close{"frmMain", "spotx"};
} // namespace main_window

namespace popup {
inline constexpr Control reply{"popup0", "temp"};
inline constexpr Control answer_yes{"popup0", "qb(19)"};
inline constexpr Control forward{"popup0", "fwd"};
inline constexpr Control close{"popup0", "Command1"};
} // namespace popup

namespace recalled {
inline constexpr Control close{"popuplast", "Command1"};
} // namespace recalled

namespace groups_window {
inline constexpr Control groups{"groups", "List1"};
inline constexpr Control others{"groups", "users"};
inline constexpr Control make{"groups", "Command2"};
inline constexpr Control take_in{"groups", "Command4"};
inline constexpr Control save{"groups", "closebtn"};
} // namespace groups_window

namespace settings_window {
inline constexpr Control tabs{"settings", "SSTab1"};
inline constexpr Control enable_away{"settings", "autoresmaster"};
inline constexpr Control choose_forward{"settings", "btnAutoForward"};
inline constexpr Control save{"settings", "savebtn"};
} // namespace settings_window

namespace forward_dialog {
inline constexpr Control names{"fwdtofrm", "fwdto"};
inline constexpr Control cancel{"fwdtofrm", "cancelbtn"};
} // namespace forward_dialog

namespace history_window {
inline constexpr Control messages{"historyfrm", "ListView1"};
inline constexpr Control close{"historyfrm", "closebtn"};
} // namespace history_window

namespace log_window {
inline constexpr Control rows{"log", "lstMessages"};
inline constexpr Control close{"log", "Command2"};
} // namespace log_window

} // namespace demo
