#pragma once

#include <QJsonObject>
#include <QWidget>

namespace driver {

/// Whether a window is a modal box that wants an answer, and no window of the program's own.
bool is_box(QWidget const& window);

/// The modal box on top: its kind ("message", "input", "file" or "other"), title, text, the default
/// answer and the buttons. Empty when none is open.
QJsonObject open_box();

/// What a box says and offers; also used for the record of the boxes that were shown.
QJsonObject described_box(QWidget const& box);

/// Answers the box on top as a person does: types "text" (if given) over what stands in its line,
/// then presses the button "button", by its label.
void answer_box(QJsonObject const& command);

} // namespace driver
