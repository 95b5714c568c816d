#include "qt/style.h"

#include <algorithm>
#include <cmath>

namespace qt {

namespace {

qreal luminance(QColor const& colour)
{
    auto const linear = [](qreal channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor farthest_from(QColor const& ground)
{
    return contrast(Qt::white, ground) > contrast(Qt::black, ground) ? Qt::white : Qt::black;
}

constexpr auto sheet = R"(
QTabWidget::pane { border: 0; border-top: 1px solid @line; top: -1px; }
QTabBar { background: transparent; }
QTabBar::tab { background: transparent; color: @muted; border: 1px solid transparent;
    border-bottom: @2px solid transparent; padding: @3px @6px @3px @6px; margin-right: @2px; }
QTabBar::tab:selected { color: @text; border-bottom: @2px solid @accent; }
QTabBar::tab:hover { color: @text; }
QTabBar::tab:selected:focus { border: 1px dotted @accent; border-bottom: @2px solid @accent; }
QListWidget, QPlainTextEdit { background: @field; color: @field_text; border: 1px solid @line;
    border-radius: @4px; selection-background-color: @accent; selection-color: @accent_text; }
QListWidget:focus, QPlainTextEdit:focus { border: 1px solid @accent; }
QListWidget { outline: 0; }
QListWidget:disabled { color: @muted; background: @ground; }
QListWidget::item { padding: @1px @4px; border-radius: @2px; border: 1px solid transparent; }
QListWidget::item:hover { background: @hover; }
QListWidget::item:selected { background: @accent; color: @accent_text; }
QListWidget::item:selected:disabled { background: @line; color: @text; }
QListWidget::item:focus { border: 1px dotted @field_text; }
QListWidget::item:selected:focus { border: 1px dotted @accent_text; }
QProgressBar { background: @field; border: 1px solid @line; border-radius: @3px; }
QProgressBar::chunk { background: @accent; border-radius: @2px; }
QFrame#Frame2 { background: @notice; border: 0; border-left: @3px solid @accent;
    border-radius: @2px; }
QLabel { color: @text; background: transparent; }
QLabel#entlabel1, QLabel#entlabel2, QLabel#Label3, QLabel#Label4, QLabel#waiting { color: @muted; }
QScrollBar:vertical { background: transparent; width: @10px; margin: @1px; }
QScrollBar::handle:vertical { background: @line; border-radius: @4px; min-height: @18px; }
QScrollBar::handle:vertical:hover { background: @muted; }
QScrollBar:horizontal { background: transparent; height: @10px; margin: @1px; }
QScrollBar::handle:horizontal { background: @line; border-radius: @4px; min-width: @18px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

} // namespace

QColor blended(QColor const& one, QColor const& other, qreal share)
{
    auto const mix = [share](float a, float b) {
        return static_cast<float>(a + (b - a) * static_cast<float>(share));
    };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

qreal contrast(QColor const& one, QColor const& other)
{
    auto const [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor legible(QColor const& wanted, QColor const& ground, qreal least)
{
    QColor const end = farthest_from(ground);
    for (qreal share = 0; share < 1; share += 0.05) {
        QColor const tried = blended(wanted, end, share);
        if (contrast(tried, ground) >= least) {
            return tried;
        }
    }
    return end;
}

Theme::Theme(QPalette const& palette)
{
    ground = palette.color(QPalette::Active, QPalette::Window);
    field = palette.color(QPalette::Active, QPalette::Base);
    text = legible(palette.color(QPalette::Active, QPalette::WindowText), ground, 7);
    QColor const highlight = palette.color(QPalette::Active, QPalette::Highlight);
    bar = blended(ground, highlight, 0.14);
    field_text = legible(palette.color(QPalette::Active, QPalette::Text), field, 7);
    muted = legible(legible(blended(text, ground, 0.4), bar), ground);
    line = blended(ground, text, 0.25);
    QColor const face = blended(palette.color(QPalette::Active, QPalette::Button), field, 0.35);
    button = contrast(text, face) >= 4.5 ? face : ground;
    accent_text = contrast(Qt::white, highlight) > 2.5 ? QColor(Qt::white) : QColor(Qt::black);
    accent = legible(highlight, accent_text);
    notice = blended(ground, highlight, 0.22);
    alarm = QColor(0xc4, 0x2b, 0x1c);
    alarm_text = Qt::white;
}

QString style_sheet(Theme const& theme, Units const& units)
{
    return filled(QLatin1String(sheet), theme, units);
}

QString filled(QString text, Theme const& theme, Units const& units)
{
    // The longer names first: each is replaced wherever it begins.
    for (auto const& [name, colour] : {
             std::pair{"@accent_text", theme.accent_text},
             std::pair{"@accent", theme.accent},
             std::pair{"@ground", theme.ground},
             std::pair{"@field_text", theme.field_text},
             std::pair{"@field", theme.field},
             std::pair{"@hover", blended(theme.field, theme.accent, 0.18)},
             std::pair{"@text", theme.text},
             std::pair{"@muted", theme.muted},
             std::pair{"@line", theme.line},
             std::pair{"@notice", theme.notice},
         }) {
        text.replace(QLatin1String(name), colour.name());
    }
    for (int pixels : {18, 10, 6, 4, 3, 2, 1}) {
        text.replace(QStringLiteral("@%1px").arg(pixels),
                     QStringLiteral("%1px").arg(px(units, pixels)));
    }
    return text;
}

int px(Units const& units, qreal pixels)
{
    constexpr qreal twips_per_pixel = 15;
    return units.pixels(static_cast<controls::Twips>(pixels * twips_per_pixel));
}

} // namespace qt
