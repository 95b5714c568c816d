#pragma once

#include <QTimer>

namespace driver {

/// Starts to keep track of every object that comes to life. Called before `main`.
void watch_objects();

/// The living timers of that object name, wherever they hang.
QList<QTimer*> timers_named(QString const& name);

} // namespace driver
