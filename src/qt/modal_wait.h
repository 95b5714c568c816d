#pragma once

#include "controls/window.h"

#include <QWidget>

#include <vector>

class QEventLoop;

namespace qt {

/// Puts a window in the way of all others, and waits behind its showing until it is hidden.
/// Everything else of the program goes on meanwhile.
class ModalWait {
public:
    /// Both must outlive the wait.
    ModalWait(controls::Window& model, QWidget& widget);

    /// To be called before the window is shown: it is in the way, or not, from its showing on.
    void show();
    /// The window has been hidden: whoever waits goes on.
    void end();

private:
    void wait();

    controls::Window& model_;
    QWidget& widget_;
    std::vector<QEventLoop*> waits_;
};

} // namespace qt
