#pragma once

#include "controls/basic.h"

#include <QObject>
#include <QWidget>

namespace qt {

/// Gives a widget the focus when its model asks for it, and tells the model when it has come.
class FocusBinder : public QObject {
public:
    /// Both must outlive the binder.
    FocusBinder(controls::Focus& model, QWidget& widget);

    void show();

protected:
    bool eventFilter(QObject* widget, QEvent* event) override;

private:
    controls::Focus& model_;
    QWidget& widget_;
    unsigned served_;
    bool giving_ = false;
};

} // namespace qt
