#pragma once

#include "qt/button.h"
#include "qt/line_label.h"
#include "qt/units.h"

#include <QLabel>
#include <QList>
#include <QWidget>

namespace qt {

/// What sets the program right again: a tab of the settings.
class SettingsAdminPage : public QWidget {
public:
    /// `units` must outlive the page.
    explicit SettingsAdminPage(Units const& units);

    Button autoclean;
    Button Command4;
    Button btnTransfer;
    LineLabel transfername;
    QLabel transfertext;

    /// The controls that take the keyboard, in the order of Tab.
    [[nodiscard]] QList<QWidget*> tab_order() { return {&autoclean, &Command4, &btnTransfer}; }

private:
    void lay_out();

    Units const& units_;
};

} // namespace qt
