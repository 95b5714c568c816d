#pragma once

#include "controls/list_box.h"
#include "qt/codec.h"

#include <QListWidget>
#include <QObject>

#include <cstddef>
#include <string>
#include <vector>

namespace qt {

/// Ties a list to its model: rows, selection, mark, font size.
class ListBinder : public QObject {
public:
    /// All must outlive the binder. The last `hidden_tail` characters of each row stay out of
    /// sight.
    ListBinder(controls::ListBox& model, QListWidget& widget, Codec const& codec,
               std::size_t hidden_tail = 0);

    void show();

protected:
    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    void show_rows();
    void show_selection();
    void tell_selection();
    void tell_click();
    [[nodiscard]] QString shown_row(std::string const& row) const;

    controls::ListBox& model_;
    QListWidget& widget_;
    Codec const& codec_;
    std::size_t hidden_tail_;
    std::vector<std::string> rows_; ///< as they are on show
    bool showing_ = false;
    bool told_ = false; ///< the gesture that is under way has changed the selection
};

} // namespace qt
