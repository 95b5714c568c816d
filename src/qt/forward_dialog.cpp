#include "qt/forward_dialog.h"

#include "qt/parts.h"

#include <QBoxLayout>
#include <QShowEvent>

namespace qt {

namespace {

using Look = Button::Look;

constexpr int width_in_pixels = 240;
constexpr int height_in_pixels = 280;

} // namespace

ForwardDialog::ForwardDialog(Units const& units, QWidget* owner)
    : FramedWindow(words("fwdtofrm"), Kind::dialog, units, owner), fwdto(&body()),
      savebtn(Look::primary, units, &body()), cancelbtn(Look::plain, units, &body())
{
    resize(size_of(width_in_pixels), size_of(height_in_pixels));
    name_parts({{&fwdto, "fwdto"}, {&savebtn, "savebtn"}, {&cancelbtn, "cancelbtn"}});
    fwdto.setAccessibleName(words("Forward to"));

    auto* const row = new QHBoxLayout;
    row->setSpacing(size_of(6));
    for (Button* const button : {&savebtn, &cancelbtn}) {
        button->setMinimumHeight(size_of(28));
        row->addWidget(button, 1);
    }
    auto* const column = new QVBoxLayout(&body());
    column->setContentsMargins(size_of(10), size_of(10), size_of(10), size_of(10));
    column->setSpacing(size_of(8));
    column->addWidget(&fwdto, 1);
    column->addLayout(row);
    order_tabs({&fwdto, &savebtn, &cancelbtn});
}

void ForwardDialog::showEvent(QShowEvent* event)
{
    auto const* const owner = parentWidget();
    if (!event->spontaneous() && owner != nullptr && owner->isVisible()) {
        move(owner->frameGeometry().center() - rect().center());
    }
    FramedWindow::showEvent(event);
}

} // namespace qt
