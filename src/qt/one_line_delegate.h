#pragma once

#include <QStyledItemDelegate>

namespace qt {

/// Shows rows that hold line ends as one line each.
class OneLineDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(QVariant const& value, QLocale const& locale) const override;
};

/// The same with a tab stop: what stands behind a tab lines up.
class TabbedLineDelegate : public OneLineDelegate {
public:
    TabbedLineDelegate(int tab_stop, QObject* parent);

    void paint(QPainter* painter, QStyleOptionViewItem const& option,
               QModelIndex const& index) const override;

private:
    int tab_stop_;
};

} // namespace qt
