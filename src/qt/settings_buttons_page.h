#pragma once

#include "qt/tick_box.h"
#include "qt/units.h"

#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QWidget>

#include <array>
#include <cstddef>

class QBoxLayout;
class QGridLayout;

namespace qt {

/// Twelve rows of the quick buttons: a tab of the settings.
class SettingsButtonsPage : public QWidget {
public:
    static constexpr std::size_t rows = 12;

    /// `first` is the number of the first row, 1 or 13. `units` must outlive the page.
    SettingsButtonsPage(std::size_t first, Units const& units);

    struct Row {
        QLabel* qslabel;
        QLineEdit* qsend;
        QLineEdit* qsendtext;
        TickBox* qsendi;
    };

    [[nodiscard]] std::size_t first() const { return first_; }
    [[nodiscard]] std::array<Row, rows> const& all() const { return rows_; }
    /// The controls that take the keyboard, in the order of Tab.
    [[nodiscard]] QList<QWidget*> tab_order() const;

private:
    void add_rows();
    [[nodiscard]] QBoxLayout* notes();
    [[nodiscard]] QBoxLayout* legend();
    [[nodiscard]] QGridLayout* grid();

    std::size_t first_;
    Units const& units_;
    std::array<Row, rows> rows_{};
};

} // namespace qt
