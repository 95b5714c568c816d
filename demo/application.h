#pragma once

#include "demo/stage.h"

#include <QApplication>

#include <functional>

namespace demo {

/// The desktop of all programs on the stage. What happens at a window enters the program of that
/// window, and no other: it may end by it.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    Stage* stage = nullptr;
    /// While the story plays, the windows are its own, but for the main window's close spot.
    bool story_plays = false;
    /// A person has touched one of the windows.
    std::function<void()> touched = [] {};
};

} // namespace demo
