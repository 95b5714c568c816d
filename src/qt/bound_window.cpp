#include "qt/bound_window.h"

namespace qt {

BoundWindow::BoundWindow(controls::Window& model, QWidget& widget, Codec const& codec,
                         Units const& units, WindowBinder::Manners manners)
    : parts(codec), model_(model), widget_(widget), wait_(model, widget),
      frame_(model, widget, codec, units, manners)
{
    model.shown.attach([this] { show(); });
    model.hidden.attach([this] {
        show();
        wait_.end();
    });
    model.repaint.attach([this] {
        show();
        widget_.repaint();
    });
}

void BoundWindow::close_by(controls::Button& button)
{
    frame_.close_asked = [&button] { button.click(); };
}

void BoundWindow::show()
{
    if (model_.visible() || widget_.isVisible()) {
        wait_.show();
        parts.show();
        show_more();
        frame_.show();
    }
}

} // namespace qt
