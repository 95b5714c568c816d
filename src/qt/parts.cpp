#include "qt/parts.h"

#include <QLabel>
#include <QWidget>

namespace qt {

QString words(char const* text)
{
    return QString::fromLatin1(text);
}

QLabel* still_text(char const* text, QWidget* parent)
{
    auto* const label = new QLabel(words(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setAccessibleName(words(text));
    return label;
}

void name_parts(std::initializer_list<std::pair<QWidget*, char const*>> parts)
{
    for (auto const& [part, name] : parts) {
        part->setObjectName(words(name));
    }
}

void order_tabs(QList<QWidget*> const& order)
{
    for (qsizetype next = 1; next < order.size(); ++next) {
        QWidget::setTabOrder(order[next - 1], order[next]);
    }
}

} // namespace qt
