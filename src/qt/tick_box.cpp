#include "qt/tick_box.h"

#include "qt/style.h"

#include <QPainter>

#include <algorithm>

namespace qt {

namespace {

constexpr int side = 13;
constexpr int gap = 4;

} // namespace

TickBox::TickBox(Units const& units, QWidget* parent) : QCheckBox(parent), units_(units)
{
    setAttribute(Qt::WA_Hover);
}

QSize TickBox::sizeHint() const
{
    int const wide = px(units_, side + gap + 4) + fontMetrics().horizontalAdvance(text());
    return {wide, std::max(px(units_, side + 4), fontMetrics().height() + px(units_, 2))};
}

QSize TickBox::minimumSizeHint() const
{
    return sizeHint();
}

bool TickBox::hitButton(QPoint const& place) const
{
    return rect().contains(place);
}

void TickBox::nextCheckState()
{
    setCheckState(checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
}

QRectF TickBox::square() const
{
    int const wide = px(units_, side);
    int const top = (height() - wide) / 2;
    return QRectF(px(units_, 1), top, wide, wide).adjusted(0.5, 0.5, -0.5, -0.5);
}

QRect TickBox::caption_place() const
{
    return rect().adjusted(px(units_, side + gap + 1), 0, 0, 0);
}

void TickBox::paintEvent(QPaintEvent* /*event*/)
{
    Theme const theme(window()->palette());
    bool const marked = checkState() != Qt::Unchecked;
    qreal const faded = isEnabled() ? 0 : 0.5;
    QColor const rim = underMouse() ? theme.accent : theme.muted;
    QColor const face = marked ? theme.accent : theme.field;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(blended(marked ? theme.accent : rim, theme.ground, faded));
    painter.setBrush(blended(face, theme.ground, faded));
    QRectF const box = square();
    painter.drawRoundedRect(box, px(units_, 3), px(units_, 3));
    painter.setPen(
        QPen(theme.accent_text, px(units_, 2), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    auto const at = [&box](qreal across, qreal down) {
        return QPointF(box.left() + box.width() * across, box.top() + box.height() * down);
    };
    if (checkState() == Qt::Checked) {
        painter.drawPolyline(QPolygonF({at(0.22, 0.54), at(0.42, 0.74), at(0.78, 0.28)}));
    } else if (marked) {
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    }
    painter.setPen(blended(theme.text, theme.ground, faded));
    painter.drawText(caption_place(),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                     text());
    if (hasFocus() && window()->isActiveWindow()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(theme.accent);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
}

} // namespace qt
