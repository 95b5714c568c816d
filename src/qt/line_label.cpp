#include "qt/line_label.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace qt {

LineLabel::LineLabel(QString const& purpose, QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAccessibleDescription(purpose);
    setAccessibleName(purpose);
}

QSize LineLabel::sizeHint() const
{
    return text().isEmpty() ? QSize(0, 0) : QLabel::sizeHint();
}

QSize LineLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

bool LineLabel::event(QEvent* event)
{
    auto const* const help =
        event->type() == QEvent::ToolTip ? dynamic_cast<QHelpEvent const*>(event) : nullptr;
    bool const cut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
    if (help != nullptr && cut && toolTip().isEmpty()) {
        QToolTip::showText(help->globalPos(), text().toHtmlEscaped(), this);
        return true;
    }
    return QLabel::event(event);
}

void LineLabel::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(clicked && event->button() == Qt::LeftButton);
}

void LineLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (clicked && event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        clicked();
    }
}

void LineLabel::be_link()
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void LineLabel::keyPressEvent(QKeyEvent* event)
{
    bool const enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && clicked && !event->isAutoRepeat()) {
        clicked();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void LineLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QString const line = text().simplified();
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width()));
    if (hasFocus() && window()->isActiveWindow()) {
        painter.setPen(QPen(palette().color(foregroundRole()), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace qt
