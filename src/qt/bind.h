#pragma once

#include "controls/basic.h"
#include "qt/button.h"
#include "qt/codec.h"

#include <QColor>

#include <string>
#include <string_view>

class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QTabWidget;
class QWidget;

namespace qt {

// Each of these makes one widget equal to its model and writes only what differs.

void show_visible(QWidget& widget, bool visible);
void show_enabled(QWidget& widget, bool enabled);
/// A tool tip shows its text letter by letter, markup included.
void show_tip(QWidget& widget, QString const& tip);
void show_font_size(QWidget& widget, int points);

/// A label's accessible name is what it says; an empty one is called by its description.
void show(QLabel& widget, controls::Label const& model, Codec const& codec);
void show(Button& widget, controls::Button const& model, Codec const& codec);
/// The button's own colours, where the model has some to tell.
void show_colours(Button& widget, controls::Button const& model);
void show(QCheckBox& widget, controls::CheckBox const& model, Codec const& codec);
void show(QProgressBar& widget, controls::ProgressBar const& model);
void show(QTabWidget& widget, controls::Tabs const& model);

/// A choice that is not in the list is shown all the same.
void show(QComboBox& widget, controls::Label const& model, Codec const& codec);
void show(QGroupBox& widget, controls::Label const& model, Codec const& codec);
void show(QLineEdit& widget, std::string const& text, Codec const& codec);
/// A label of several lines.
void show_lines(QLabel& widget, controls::Label const& model, Codec const& codec);

[[nodiscard]] QColor colour(controls::Colour const& model);

} // namespace qt
