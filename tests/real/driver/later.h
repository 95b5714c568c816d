#pragma once

#include <QStringList>

#include <functional>

namespace driver {

/// Does something from the event loop, after the reply to the test has gone: what opens a box does
/// not return before the box is closed. Things asked for are done in the order of asking.
void later(std::function<void()> doing);

/// How many things asked for have not begun yet.
int not_begun();

/// How many have not returned yet. While a modal window is open, what has opened it does not
/// return.
int unfinished();

/// What was asked for and could not be done when its turn came.
QStringList late_refusals();

} // namespace driver
