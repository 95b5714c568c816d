#include "qt/one_line_delegate.h"

#include "qt/style.h"

#include <QApplication>
#include <QPainter>
#include <QTextOption>
#include <QWidget>

namespace qt {

QString OneLineDelegate::displayText(QVariant const& value, QLocale const&) const
{
    QString line = value.toString();
    line.replace(QStringLiteral("\t\r\n"), QStringLiteral("\t"));
    line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    return line.replace(u'\r', u' ').replace(u'\n', u' ');
}

TabbedLineDelegate::TabbedLineDelegate(int tab_stop, QObject* parent)
    : OneLineDelegate(parent), tab_stop_(tab_stop)
{
}

void TabbedLineDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option,
                               QModelIndex const& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    QString const line = std::exchange(row.text, QString());
    QStyle const& style = *row.widget->style();
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    Theme const theme(row.widget->window()->palette());
    bool const selected = row.state.testFlag(QStyle::State_Selected);
    QTextOption layout(Qt::AlignLeft | Qt::AlignVCenter);
    layout.setWrapMode(QTextOption::NoWrap);
    layout.setTabStopDistance(tab_stop_);
    painter->save();
    painter->setClipRect(row.rect);
    painter->setFont(row.font);
    painter->setPen(selected ? theme.accent_text : theme.field_text);
    painter->drawText(row.rect.adjusted(row.fontMetrics.averageCharWidth(), 0, 0, 0), line, layout);
    painter->restore();
}

} // namespace qt
