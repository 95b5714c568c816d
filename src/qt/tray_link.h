#pragma once

#include "qt/desk_panel.h"
#include "qt/desk_tray.h"
#include "qt/panel_watch.h"
#include "qt/window_binder.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QObject>

namespace qt {

/// The tray icon and the main window. Whoever hides the window finds it again by the icon; on a
/// desktop without a place for the icon, in the task bar.
class TrayLink : public QObject {
public:
    /// All must outlive the link. `menu` is the icon's.
    TrayLink(DeskTray& tray, WindowBinder& main, QMenu& menu);

    /// To be called before the main window is shown.
    void look();

private:
    DeskTray& tray_;
    WindowBinder& main_;
    DeskPanel panel_;
    PanelWatch watch_;
    QElapsedTimer time_;
};

} // namespace qt
