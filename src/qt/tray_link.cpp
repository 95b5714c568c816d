#include "qt/tray_link.h"

#include <QMetaObject>

namespace qt {

TrayLink::TrayLink(DeskTray& tray, WindowBinder& main, QMenu& menu)
    : tray_(tray), main_(main), watch_([this] { return panel_.takes_icons(); })
{
    time_.start();
    tray.set_menu(menu);
    main.brought_back = [this] { tray_.left_pressed(); };
    watch_.shown_by = &DeskTray::window;
    // Not at once: the look comes from the midst of the showing.
    watch_.came = [this] {
        QMetaObject::invokeMethod(
            this, [this] { tray_.panel_restarted(); }, Qt::QueuedConnection);
    };
    connect(&panel_, &DeskPanel::changed, this, [this] { watch_.look_soon(); });
}

void TrayLink::look()
{
    watch_.look(PanelWatch::Time(time_.elapsed()));
    main_.stays_in_task_bar = watch_.is_missing();
    DeskTray::stay_in_reach();
}

} // namespace qt
