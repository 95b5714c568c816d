#include "qt/splash_window.h"

#include "core/version.h"
#include "qt/icons.h"
#include "qt/line_label.h"
#include "qt/style.h"

#include <QBoxLayout>
#include <QEvent>
#include <QPainter>
#include <QScreen>

namespace qt {

namespace {

constexpr controls::Twips width_in_twips = 5400;
constexpr controls::Twips height_in_twips = 2700;

} // namespace

SplashWindow::SplashWindow(Units const& units)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), units_(units)
{
    setObjectName(QStringLiteral("loading"));
    setWindowIcon(window_icon(QStringLiteral("vexloim")));
    setFixedSize(units.pixels(width_in_twips), units.pixels(height_in_twips));
    body_.setGeometry(rect());
    ProgressBar1.setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1.setAccessibleName(QStringLiteral("Start-up progress"));
    lay_out();
    restyle();
}

void SplashWindow::lay_out()
{
    auto* const icon = new QLabel(&body_);
    icon->setPixmap(windowIcon().pixmap(px(units_, 64)));
    auto* const name = new LineLabel(QStringLiteral("Program"), &body_);
    name->setText(QStringLiteral("Vexlo Instant Messaging"));
    QFont large = font();
    large.setPointSizeF(12);
    large.setBold(true);
    name->setFont(large);
    auto* const version = new LineLabel(QStringLiteral("Version"), &body_);
    version->setText(QStringLiteral("Version ") + QString::fromStdString(core::version_text()));
    QFont small = font();
    small.setPointSizeF(9);
    version->setFont(small);

    auto* const texts = new QVBoxLayout;
    texts->setSpacing(px(units_, 4));
    texts->addStretch(1);
    texts->addWidget(name);
    texts->addWidget(version);
    texts->addStretch(1);
    auto* const upper = new QHBoxLayout;
    upper->setSpacing(px(units_, 16));
    upper->addWidget(icon);
    upper->addLayout(texts, 1);
    auto* const whole = new QVBoxLayout(&body_);
    whole->setContentsMargins(px(units_, 26), px(units_, 20), px(units_, 26), px(units_, 24));
    whole->addLayout(upper, 1);
    whole->addWidget(&ProgressBar1);
    ProgressBar1.setTextVisible(false);
    ProgressBar1.setFixedHeight(px(units_, 9));
}

void SplashWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        restyle();
    }
    QWidget::changeEvent(event);
}

void SplashWindow::restyle()
{
    if (auto const sheet = style_sheet(Theme(palette()), units_); body_.styleSheet() != sheet) {
        body_.setStyleSheet(sheet);
    }
}

void SplashWindow::showEvent(QShowEvent* event)
{
    move(screen()->availableGeometry().center() - rect().center());
    QWidget::showEvent(event);
}

void SplashWindow::paintEvent(QPaintEvent* /*event*/)
{
    Theme const theme(palette());
    QPainter painter(this);
    painter.fillRect(rect(), theme.ground);
    painter.fillRect(0, 0, width(), px(units_, 4), theme.accent);
    painter.setPen(theme.line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace qt
