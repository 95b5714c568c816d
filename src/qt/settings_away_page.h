#pragma once

#include "qt/button.h"
#include "qt/line_label.h"
#include "qt/tick_box.h"
#include "qt/units.h"

#include <QLineEdit>
#include <QList>
#include <QWidget>

#include <array>

class QGridLayout;

namespace qt {

/// What the program answers in an absent user's place: a tab of the settings.
class SettingsAwayPage : public QWidget {
public:
    /// `units` must outlive the page.
    explicit SettingsAwayPage(Units const& units);

    TickBox autoresmaster;
    std::array<QLineEdit*, 4> ar{};
    QLineEdit autorespond;
    LineLabel ar3temp;
    Button btnAutoForward;
    TickBox autoreply;

    /// The controls that take the keyboard, in the order of Tab.
    [[nodiscard]] QList<QWidget*> tab_order();

private:
    void lay_out();
    [[nodiscard]] QGridLayout* responses();
    [[nodiscard]] QGridLayout* forwarding();

    Units const& units_;
};

} // namespace qt
