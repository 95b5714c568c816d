#include "qt/framed_window.h"

#include "qt/icons.h"
#include "qt/parts.h"
#include "qt/style.h"

#include <QEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace qt {

namespace {

constexpr qreal text_points = 9;

/// What only windows with a frame hold, beside what all windows do. In a message the colours of the
/// letters mean something, so they stand on white whatever the desktop's colours are.
constexpr auto sheet = R"(
QTreeWidget, QTextEdit { background: @field; color: @field_text; border: 1px solid @line;
    border-radius: @4px; selection-background-color: @accent; selection-color: @accent_text; }
QTreeWidget:focus, QTextEdit:focus { border: 1px solid @accent; }
QTextEdit#message { background: white; color: black; }
QTreeWidget { outline: 0; }
QTreeWidget::item { padding: @2px @4px; border: 0; }
QTreeWidget::item:hover { background: @hover; }
QTreeWidget::item:selected { background: @accent; color: @accent_text; }
QHeaderView { background: transparent; }
QHeaderView::section { background: @ground; color: @muted; border: 0;
    border-right: 1px solid @line; border-bottom: 1px solid @line; padding: @3px @6px; }
QGroupBox { color: @text; border: 1px solid @line; border-radius: @4px; margin-top: @10px;
    padding-top: @4px; }
QGroupBox::title { subcontrol-origin: margin; left: @6px; padding: 0 @3px; }
QLineEdit { background: @field; color: @field_text; border: 1px solid @line;
    border-radius: @4px; padding: @2px @4px; selection-background-color: @accent;
    selection-color: @accent_text; }
QLineEdit:focus { border: 1px solid @accent; }
QLineEdit:read-only { background: transparent; color: @text; }
QLabel#localinfo { border: 1px solid transparent; }
QLabel#localinfo:focus { border: 1px dotted @accent; }
QScrollArea, QScrollArea > QWidget > QWidget { background: transparent; border: 0; }
)";

} // namespace

FramedWindow::FramedWindow(QString const& name, Kind kind, Units const& units, QWidget* owner)
    : QWidget(owner, kind == Kind::dialog ? Qt::Dialog : Qt::Window), units_(units)
{
    setObjectName(name);
    setWindowIcon(window_icon(words("vexloim")));
    QFont font = this->font();
    font.setPointSizeF(text_points);
    body_.setFont(font);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(&body_);
    restyle();
}

int FramedWindow::size_of(qreal pixels) const
{
    return px(units_, pixels);
}

void FramedWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        restyle();
    }
    QWidget::changeEvent(event);
}

void FramedWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FramedWindow::restyle()
{
    Theme const theme(palette());
    auto const whole = style_sheet(theme, units_) + filled(QLatin1String(sheet), theme, units_);
    if (body_.styleSheet() != whole) {
        body_.setStyleSheet(whole);
    }
}

} // namespace qt
