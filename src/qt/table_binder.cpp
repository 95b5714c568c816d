#include "qt/table_binder.h"

#include "qt/bind.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace qt {

namespace {

/// A column's cells stand as its header does.
Qt::Alignment alignment(QTreeWidget const& widget, int column)
{
    return static_cast<Qt::Alignment>(widget.headerItem()->textAlignment(column));
}

} // namespace

TableBinder::TableBinder(controls::Table& model, QTreeWidget& widget, Codec const& codec)
    : model_(model), widget_(widget), codec_(codec)
{
    connect(&widget, &QTreeWidget::itemSelectionChanged, this, &TableBinder::tell_selection);
    connect(&widget, &QTreeWidget::itemClicked, this, &TableBinder::tell_click);
    connect(&widget, &QTreeWidget::itemDoubleClicked, this,
            [this] { model_.double_clicked.run(); });
    widget.installEventFilter(this);
    widget.viewport()->installEventFilter(this);
}

bool TableBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        told_ = false;
    } else if (event->type() == QEvent::KeyPress && watched == &widget_) {
        auto const key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            model_.double_clicked.run(); // Whoever has no mouse means the same.
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void TableBinder::show()
{
    QScopedValueRollback const guard(showing_, true);
    show_tip(widget_, codec_.to_unicode(model_.tool_tip));
    show_rows();
    show_selection();
}

void TableBinder::show_rows()
{
    auto const count = static_cast<std::size_t>(model_.count());
    auto const at = [this](std::size_t index) -> controls::Table::Row const& {
        return model_.row(static_cast<int>(index) + 1);
    };
    // Old rows go at the front and new ones come at the end; what stands between stays.
    auto const oldest = count == 0 ? rows_.end() : std::find(rows_.begin(), rows_.end(), at(0));
    drop_rows(0, static_cast<std::size_t>(oldest - rows_.begin()));
    std::size_t same = 0;
    while (same < std::min(count, rows_.size()) && rows_[same] == at(same)) {
        ++same;
    }
    drop_rows(same, rows_.size());
    for (std::size_t index = same; index < count; ++index) {
        add_row(at(index));
    }
}

void TableBinder::drop_rows(std::size_t first, std::size_t last)
{
    for (std::size_t gone = last; gone > first; --gone) {
        delete widget_.takeTopLevelItem(static_cast<int>(gone - 1));
    }
    auto const start = rows_.begin();
    rows_.erase(start + static_cast<std::ptrdiff_t>(first),
                start + static_cast<std::ptrdiff_t>(last));
}

void TableBinder::add_row(controls::Table::Row const& row)
{
    auto* const item = new QTreeWidgetItem(&widget_);
    for (std::size_t column = 0; column < row.size(); ++column) {
        auto const place = static_cast<int>(column);
        item->setText(place, codec_.to_unicode(row[column]));
        item->setTextAlignment(place, alignment(widget_, place));
    }
    rows_.push_back(row);
}

void TableBinder::show_selection()
{
    if (selected_row() == model_.selected()) {
        return;
    }
    auto* const item = widget_.topLevelItem(model_.selected() - 1);
    if (item != nullptr) {
        widget_.setCurrentItem(item, widget_.header()->logicalIndexAt(0));
        widget_.scrollToItem(item);
    } else {
        widget_.clearSelection();
    }
}

int TableBinder::selected_row() const
{
    auto const selection = widget_.selectedItems();
    return selection.isEmpty() ? 0 : widget_.indexOfTopLevelItem(selection.constFirst()) + 1;
}

void TableBinder::tell_selection()
{
    if (!showing_ && selected_row() != 0) {
        told_ = true;
        model_.choose(selected_row());
    }
}

void TableBinder::tell_click()
{
    if (!told_ && selected_row() != 0) {
        model_.choose(selected_row()); // Whoever clicks on the selected row means it too.
    }
}

} // namespace qt
