#pragma once

#include <QWidget>

/// Boxes and windows that stand in the way of all others.
namespace demo {

/// The one in front; raises NotAsTold where there is none.
[[nodiscard]] QWidget& in_the_way();
/// Cancels all that stand in front of `window`; all there are for nullptr.
void cancel_all_before(QWidget const* window);

} // namespace demo
