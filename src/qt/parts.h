#pragma once

#include <QList>
#include <QString>

#include <initializer_list>
#include <utility>

class QLabel;
class QWidget;

/// What every window is built with.
namespace qt {

[[nodiscard]] QString words(char const* text);

/// A text that stays as it is. The widget belongs to `parent`.
[[nodiscard]] QLabel* still_text(char const* text, QWidget* parent);

/// Gives the parts of a window the names of the controls that they show.
void name_parts(std::initializer_list<std::pair<QWidget*, char const*>> parts);

/// Tab goes from each to the next.
void order_tabs(QList<QWidget*> const& order);

} // namespace qt
