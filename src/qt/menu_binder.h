#pragma once

#include "controls/menu.h"
#include "qt/codec.h"

#include <QList>
#include <QString>

class QAction;
class QMenu;
class QWidget;

namespace qt {

/// Shows a menu of the logic. Its actions stand in index order, hidden ones included.
class MenuBinder {
public:
    /// `menu` and `codec` must outlive the binder; the widget belongs to `owner`.
    MenuBinder(controls::Menu& menu, QString const& name, Codec const& codec, QWidget& owner);

    /// Makes the entries equal to the model.
    void show();

    [[nodiscard]] QMenu& widget() { return *widget_; }

private:
    controls::Menu& menu_;
    Codec const& codec_;
    QMenu* widget_;
    QList<QAction*> actions_;
};

} // namespace qt
