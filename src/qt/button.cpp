#include "qt/button.h"

#include "qt/bind.h"
#include "qt/style.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace qt {

namespace {

constexpr qreal hover_share = 0.10;
constexpr qreal press_share = 0.22;
constexpr qreal disabled_share = 0.6;
constexpr qreal key_share = 0.75;
/// How much smaller a long caption is written before it is cut.
constexpr qreal smallest_share = 0.85;

} // namespace

Button::Button(Look look, Units const& units, QWidget* parent)
    : QPushButton(parent), look_(look), units_(units)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void Button::set_caption(QString const& caption)
{
    if (text() != caption) {
        setText(caption);
        setShortcut({}); // A "&" is a letter like any other.
        name_it();
    }
}

void Button::name_it()
{
    QString const name = text().isEmpty() ? spare_name_ : text();
    setAccessibleName(name);
    set_tip(tip_);
}

void Button::set_spare_name(QString const& name)
{
    spare_name_ = name;
    name_it();
}

void Button::set_tip(QString const& tip)
{
    tip_ = tip;
    show_tip(*this, tip.isEmpty() && !shows_whole_caption() ? text() : tip);
}

bool Button::shows_whole_caption() const
{
    int const wide = caption_place(rect()).width();
    return !only_glyph() && QFontMetrics(fitting_font(wide)).horizontalAdvance(text()) <= wide;
}

void Button::set_glyph(QString const& name)
{
    glyph_.set_name(name);
    update();
}

void Button::set_key(QString const& key)
{
    key_ = key;
    setAccessibleDescription(key);
}

void Button::set_colours(QColor const& face, QColor const& text)
{
    QPalette colours = palette();
    if (!coloured_ || colours.color(QPalette::Button) != face ||
        colours.color(QPalette::ButtonText) != text) {
        colours.setColor(QPalette::Button, face);
        colours.setColor(QPalette::ButtonText, text);
        setPalette(colours);
        coloured_ = true;
    }
}

void Button::set_free_top(int pixels)
{
    if (free_top_ != pixels) {
        free_top_ = pixels;
        update();
    }
}

QSize Button::sizeHint() const
{
    int const high = px(units_, 26);
    if (only_glyph()) {
        return {px(units_, 28), high};
    }
    int const glyph = glyph_.empty() ? 0 : px(units_, 20);
    return {fontMetrics().horizontalAdvance(text()) + glyph + px(units_, 16), high};
}

QSize Button::minimumSizeHint() const
{
    return {px(units_, 20), px(units_, 18)};
}

bool Button::only_glyph() const
{
    return !glyph_.empty() && look_ != Look::primary;
}

bool Button::event(QEvent* event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::ToolTip) {
        Q_EMIT pointed();
    } else if (event->type() == QEvent::FontChange) {
        name_it();
    }
    return QPushButton::event(event);
}

void Button::keyPressEvent(QKeyEvent* event)
{
    bool const enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat()) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

QColor Button::face(Theme const& theme) const
{
    QColor face;
    switch (look_) {
    case Look::plain:
        face = coloured_ ? palette().color(QPalette::Button) : theme.button;
        break;
    case Look::primary:
        face = theme.accent;
        break;
    case Look::flat:
        face = theme.bar;
        break;
    case Look::closing:
        face = underMouse() ? theme.alarm : theme.bar;
        break;
    }
    if (!isEnabled()) {
        return blended(face, theme.ground, disabled_share);
    }
    QColor const shade = coloured_ ? QColor(Qt::black) : theme.text;
    if (isDown()) {
        return blended(face, shade, press_share);
    }
    return underMouse() ? blended(face, shade, look_ == Look::closing ? 0 : hover_share) : face;
}

QColor Button::ink(Theme const& theme, QColor const& face) const
{
    if (!isEnabled()) {
        return blended(face, theme.text, coloured_ ? 0.65 : 0.45);
    }
    if (coloured_) {
        return palette().color(QPalette::ButtonText);
    }
    if (look_ == Look::primary) {
        return theme.accent_text;
    }
    return look_ == Look::closing && underMouse() ? theme.alarm_text : theme.text;
}

void Button::paintEvent(QPaintEvent* /*event*/)
{
    Theme const theme(window()->palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor const colour = face(theme);
    draw_face(painter, theme, colour);
    draw_contents(painter, ink(theme, colour));
}

void Button::draw_face(QPainter& painter, Theme const& theme, QColor const& face) const
{
    bool const flat = look_ == Look::flat || look_ == Look::closing;
    QRectF const place = QRectF(rect()).adjusted(0.5, 0.5 + free_top_, -0.5, -0.5);
    qreal const radius = px(units_, 4);
    bool const faceless = flat && !(isEnabled() && (underMouse() || isDown()));
    painter.setPen(flat ? QPen(Qt::NoPen) : QPen(blended(face, theme.text, 0.28)));
    painter.setBrush(faceless ? QBrush(Qt::NoBrush) : QBrush(face));
    painter.drawRoundedRect(place, radius, radius);
    if (hasFocus() && window()->isActiveWindow()) {
        // Two rings, so that the focus is seen on any face.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme.accent, px(units_, 2)));
        painter.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        painter.setPen(QPen(theme.field, 1));
        painter.drawRoundedRect(place.adjusted(2, 2, -2, -2), radius - 1, radius - 1);
    }
}

QFont Button::key_font() const
{
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * key_share);
    return small;
}

QFont Button::fitting_font(int wide) const
{
    QFont fitting = font();
    int const wanted = fontMetrics().horizontalAdvance(text());
    if (wanted > wide) {
        qreal const share = std::max(smallest_share, static_cast<qreal>(wide) / wanted);
        fitting.setPointSizeF(font().pointSizeF() * share);
    }
    return fitting;
}

QRect Button::caption_place(QRect place) const
{
    int const margin = px(units_, 4);
    place.adjust(margin, free_top_, -margin, 0);
    if (!key_.isEmpty()) {
        // All keys take the room of the widest, so that a column's captions stand in line.
        place.setLeft(QFontMetrics(key_font()).horizontalAdvance(QStringLiteral("F12")) + margin +
                      px(units_, 3));
    }
    return place;
}

void Button::draw_contents(QPainter& painter, QColor const& ink)
{
    QRect place = caption_place(rect());
    painter.setPen(ink);
    if (!key_.isEmpty()) {
        draw_key(painter, ink);
    }
    int const side = px(units_, 16);
    if (only_glyph()) {
        glyph_.icon(ink).paint(&painter, (width() - side) / 2, (height() - side) / 2, side, side);
        return;
    }
    if (!glyph_.empty()) {
        int const wide = fontMetrics().horizontalAdvance(text()) + side + px(units_, 5);
        int const left = std::max(place.left(), place.center().x() - wide / 2);
        glyph_.icon(ink).paint(&painter, left, (height() - side) / 2, side, side);
        place.setLeft(left + side + px(units_, 5));
    }
    painter.setFont(fitting_font(place.width()));
    auto const caption = painter.fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    auto const across = glyph_.empty() ? Qt::AlignHCenter : Qt::AlignLeft;
    painter.drawText(place, static_cast<int>(across | Qt::AlignVCenter) | Qt::TextSingleLine,
                     caption);
}

void Button::draw_key(QPainter& painter, QColor const& ink) const
{
    painter.save();
    painter.setFont(key_font());
    painter.setOpacity(0.7);
    painter.setPen(ink);
    painter.drawText(rect().adjusted(px(units_, 4), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     key_);
    painter.restore();
}

} // namespace qt
