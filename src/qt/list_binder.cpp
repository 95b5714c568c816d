#include "qt/list_binder.h"

#include "qt/bind.h"

#include <QEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <string_view>

namespace qt {

namespace {

/// More rows than anybody scrolls through are not put on show: each costs the widget an object.
constexpr int most_rows = 10000;
constexpr std::size_t longest_row = 1000;

} // namespace

ListBinder::ListBinder(controls::ListBox& model, QListWidget& widget, Codec const& codec,
                       std::size_t hidden_tail)
    : model_(model), widget_(widget), codec_(codec), hidden_tail_(hidden_tail)
{
    widget.setSelectionMode(model.multi_selection ? QAbstractItemView::ExtendedSelection
                                                  : QAbstractItemView::SingleSelection);
    connect(&widget, &QListWidget::itemSelectionChanged, this, &ListBinder::tell_selection);
    connect(&widget, &QListWidget::itemClicked, this, &ListBinder::tell_click);
    widget.viewport()->installEventFilter(this);
}

bool ListBinder::eventFilter(QObject* viewport, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        told_ = false;
    }
    return QObject::eventFilter(viewport, event);
}

void ListBinder::show()
{
    QScopedValueRollback const guard(showing_, true);
    show_visible(widget_, model_.visible);
    show_enabled(widget_, model_.enabled);
    show_tip(widget_, codec_.to_unicode(model_.tool_tip));
    show_font_size(widget_, model_.font_size);
    show_rows();
    show_selection();
}

void ListBinder::show_rows()
{
    auto const count = static_cast<std::size_t>(std::min(model_.count(), most_rows));
    auto const at = [this](std::size_t index) -> std::string const& {
        return model_.row(static_cast<int>(index));
    };
    // Rows come and go one at a time: what is the same before and behind the change stays.
    std::size_t start = 0;
    while (start < std::min(count, rows_.size()) && rows_[start] == at(start)) {
        ++start;
    }
    std::size_t tail = 0;
    while (tail < std::min(count, rows_.size()) - start &&
           rows_[rows_.size() - 1 - tail] == at(count - 1 - tail)) {
        ++tail;
    }
    for (std::size_t gone = rows_.size() - tail; gone > start; --gone) {
        delete widget_.takeItem(static_cast<int>(gone - 1));
    }
    for (std::size_t index = start; index < count - tail; ++index) {
        widget_.insertItem(static_cast<int>(index), shown_row(at(index)));
    }
    if (rows_.size() != count || start + tail != count) {
        rows_.clear();
        for (std::size_t index = 0; index < count; ++index) {
            rows_.push_back(at(index));
        }
    }
}

QString ListBinder::shown_row(std::string const& row) const
{
    auto const tail = row.size() >= hidden_tail_ ? hidden_tail_ : 0;
    auto const shown = std::string_view(row).substr(0, row.size() - tail);
    return codec_.to_unicode(shown.substr(0, longest_row));
}

void ListBinder::show_selection()
{
    for (int index = 0; index < widget_.count(); ++index) {
        QListWidgetItem& item = *widget_.item(index);
        if (item.isSelected() != model_.selected(index)) {
            item.setSelected(model_.selected(index));
        }
    }
    if (widget_.currentRow() != model_.index()) {
        widget_.setCurrentRow(model_.index(), QItemSelectionModel::NoUpdate);
    }
}

void ListBinder::tell_selection()
{
    if (showing_) {
        return;
    }
    std::vector<int> selection;
    for (int row = 0; row < widget_.count(); ++row) {
        if (widget_.item(row)->isSelected()) {
            selection.push_back(row);
        }
    }
    told_ = true;
    if (model_.multi_selection) {
        model_.choose_many(selection, widget_.currentRow());
    } else {
        model_.choose(selection.empty() ? controls::ListBox::none : selection.front());
    }
}

void ListBinder::tell_click()
{
    if (!told_) {
        model_.clicked.run(); // Whoever clicks on the row that is selected already means it too.
    }
}

} // namespace qt
