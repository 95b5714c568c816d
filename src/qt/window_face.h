#pragma once

namespace qt {

/// From now on screen readers are told that the program's windows are windows and dialogs; the
/// toolkit takes plain ones for parts of something else.
void tell_windows_apart();

} // namespace qt
