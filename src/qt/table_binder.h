#pragma once

#include "controls/table.h"
#include "qt/codec.h"

#include <QObject>
#include <QTreeWidget>

#include <deque>

namespace qt {

/// Ties a report list to its model: rows and selection, clicks, keys and double clicks.
class TableBinder : public QObject {
public:
    /// All must outlive the binder.
    TableBinder(controls::Table& model, QTreeWidget& widget, Codec const& codec);

    void show();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show_rows();
    void show_selection();
    void add_row(controls::Table::Row const& row);
    void drop_rows(std::size_t first, std::size_t last);
    void tell_selection();
    void tell_click();
    [[nodiscard]] int selected_row() const;

    controls::Table& model_;
    QTreeWidget& widget_;
    Codec const& codec_;
    std::deque<controls::Table::Row> rows_; ///< as they are on show
    bool showing_ = false;
    bool told_ = false; ///< the gesture that is under way has changed the selection
};

} // namespace qt
