#pragma once

#include "forms/frm_main.h"

#include <QObject>

namespace qt {

/// Lets the event loop run the main window's three timers: one QTimer each, under the timer's name.
class Clockwork : public QObject {
public:
    /// `frmMain` must outlive the clockwork. The timers are children of `owner`, where they are
    /// found by name.
    Clockwork(forms::FrmMain& frmMain, QObject& owner);

    /// Stops all three for good.
    void stop();

private:
    void bind(controls::Timer& timer, QString const& name, Qt::TimerType precision);

    QObject& owner_;
    bool stopped_ = false;
};

} // namespace qt
