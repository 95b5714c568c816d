#pragma once

#include "qt/button.h"
#include "qt/framed_window.h"

#include <QListWidget>

namespace qt {

/// Who messages are forwarded to. It comes up in the middle of its owner. Its parts bear the names
/// of the controls that they show.
class ForwardDialog : public FramedWindow {
public:
    /// `units` must outlive the window.
    ForwardDialog(Units const& units, QWidget* owner);

    QListWidget fwdto;
    Button savebtn;
    Button cancelbtn;

protected:
    void showEvent(QShowEvent* event) override;
};

} // namespace qt
