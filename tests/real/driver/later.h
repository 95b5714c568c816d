#pragma once

#include <QStringList>

#include <functional>

namespace driver {

/// Does something from the event loop, after the reply to the test has gone: what opens a box does
/// not return before the box is closed. Things asked for are done in the order of asking.
void later(std::function<void()> doing);

/// How many things asked for have not begun yet. Whoever can ask while one of them runs, asks from
/// the loop of a window that it has opened: it waits for a person then.
int unfinished();

/// What was asked for and could not be done when its turn came.
QStringList late_refusals();

} // namespace driver
