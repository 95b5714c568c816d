#include "qt/style.h"
#include "tests/qt/desk.h"

#include <QApplication>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using desk::MainDesk;
using desk::PopupDesk;

QPalette palette_of(QColor const& ground, QColor const& field, QColor const& highlight)
{
    QPalette colours(ground);
    colours.setColor(QPalette::Base, field);
    colours.setColor(QPalette::Highlight, highlight);
    return colours;
}

TEST(Contrast, GoesFromOneToTwentyOne)
{
    EXPECT_NEAR(qt::contrast(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(qt::contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(qt::contrast(Qt::red, Qt::red), 1, 0.01);
    EXPECT_NEAR(qt::contrast(Qt::red, Qt::white), 4.0, 0.01);
}

TEST(Contrast, ALegibleColourIsLeftAlone)
{
    QColor const blue(0x1f, 0x5f, 0xa8);

    EXPECT_EQ(qt::legible(blue, Qt::white), blue);
    EXPECT_EQ(qt::Theme(palette_of(Qt::white, Qt::white, blue)).accent, blue);
}

TEST(Contrast, AColourThatIsNotLegibleIsTakenNoFartherThanItMust)
{
    QColor const darker = qt::legible(Qt::red, Qt::white);

    EXPECT_GE(qt::contrast(darker, Qt::white), 4.5);
    EXPECT_LT(qt::contrast(darker, Qt::white), 5.5);
    EXPECT_EQ(darker.hue(), 0);
}

struct Palettes : testing::TestWithParam<QPalette> {};

TEST_P(Palettes, EveryTextStandsOutFromItsGround)
{
    qt::Theme const theme(GetParam());

    for (QColor const& ground : {theme.ground, theme.bar, theme.notice, theme.button}) {
        EXPECT_GE(qt::contrast(theme.text, ground), 4.5) << ground.name().toStdString();
    }
    for (QColor const& ground : {theme.ground, theme.bar}) {
        EXPECT_GE(qt::contrast(theme.muted, ground), 4.5) << ground.name().toStdString();
    }
    EXPECT_GE(qt::contrast(theme.field_text, theme.field), 4.5);
    EXPECT_GE(qt::contrast(theme.accent_text, theme.accent), 4.5);
    EXPECT_GE(qt::contrast(theme.alarm_text, theme.alarm), 4.5);
}

INSTANTIATE_TEST_SUITE_P(
    OfDesktops, Palettes,
    testing::Values(QPalette(QColor(0xef, 0xef, 0xef)), desk::dark_palette(),
                    palette_of(Qt::black, Qt::black, Qt::yellow),
                    palette_of(Qt::white, Qt::white, QColor(0xff, 0x80, 0x00)),
                    palette_of(QColor(0x44, 0x44, 0x44), Qt::white, QColor(0x00, 0x80, 0x80)),
                    palette_of(QColor(0xc0, 0xa8, 0x80), QColor(0xff, 0xf4, 0xd8), Qt::darkGreen),
                    palette_of(QColor(0x80, 0x80, 0x80), QColor(0x70, 0x70, 0x70), Qt::cyan)));

/// The greatest contrast of any pixel of the part with its most frequent colour.
qreal contrast_seen(QWidget& window, QWidget const& part)
{
    QRect const place(part.mapTo(&window, QPoint()), part.size());
    QImage const seen = window.grab(place.adjusted(2, 2, -2, -2)).toImage();
    QHash<QRgb, int> counts;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            ++counts[seen.pixel(x, y)];
        }
    }
    auto const ground = std::max_element(counts.cbegin(), counts.cend());
    qreal most = 0;
    for (auto pixel = counts.keyBegin(); pixel != counts.keyEnd(); ++pixel) {
        most = std::max(most, qt::contrast(QColor(*pixel), QColor(ground.key())));
    }
    return most;
}

/// A desktop with another palette, for as long as it lives.
class OtherPalette {
public:
    explicit OtherPalette(QPalette const& colours) : before_(QApplication::palette())
    {
        QApplication::setPalette(colours);
    }
    ~OtherPalette() { QApplication::setPalette(before_); }
    OtherPalette(OtherPalette const&) = delete;
    OtherPalette& operator=(OtherPalette const&) = delete;

private:
    QPalette before_;
};

constexpr std::array texts_of_main{
    "title",   "Label4", "helpbtn",    "allusers", "messagetext",   "entlabel1",  "Label5",
    "sendbtn", "qb(1)",  "statustext", "cuetotal", "Checkallusers", "recall",     "history",
    "options", "spotx",  "chatbtn",    "Command3", "away",          "autorespond"};

void fill(MainDesk& desk)
{
    desk.form.messagetext.set_text("Good morning");
    desk.form.statustext.set_caption("Message sent to ALL");
    desk.form.cuetotal.set_caption("3");
    desk.form.Label5.set_caption("Auto Respond On: lunch");
    desk.form.Label5.visible = desk.form.Frame2.visible = true;
    desk.form.away.visible = desk.form.autorespond.visible = true;
    desk.show();
}

void expect_legible(MainDesk& desk)
{
    for (char const* name : texts_of_main) {
        EXPECT_GE(contrast_seen(desk.window, desk.control(name)), 4.5) << name;
    }
}

TEST(Look, TheMainWindowIsLegibleOnALightDesktop)
{
    MainDesk desk;
    fill(desk);

    expect_legible(desk);
}

TEST(Look, TheMainWindowIsDarkAndLegibleOnADarkDesktop)
{
    OtherPalette const dark(desk::dark_palette());
    MainDesk desk;
    fill(desk);

    expect_legible(desk);
    QImage const seen = desk.window.grab().toImage();
    for (char const* name : {"messagetext", "allusers"}) {
        QWidget const& field = desk.control(name);
        QPoint const corner = field.mapTo(&desk.window, field.rect().bottomRight());
        EXPECT_LT(seen.pixelColor(corner - QPoint(6, 6)).lightness(), 80) << name;
    }
    EXPECT_LT(seen.pixelColor(4, seen.height() / 2).lightness(), 80);
}

TEST(Look, TheMainWindowFollowsADesktopThatTurnsDark)
{
    MainDesk desk;
    fill(desk);
    OtherPalette const dark(desk::dark_palette());
    desk.show();

    expect_legible(desk);
    QWidget const& field = desk.control("messagetext");
    QPoint const corner = field.mapTo(&desk.window, field.rect().bottomRight());
    QImage const seen = desk.window.grab().toImage();
    EXPECT_LT(seen.pixelColor(corner - QPoint(6, 6)).lightness(), 80);
}

TEST(Look, AMessageWindowIsTheSameOnADarkDesktop)
{
    auto const picture = [] {
        PopupDesk desk;
        desk.form.temp.set_text("On my way");
        desk.form.Check1.visible = true;
        desk.form.Command2.enabled = true;
        desk.show();
        return desk.window.grab().toImage();
    };
    QImage const light = picture();
    OtherPalette const dark(desk::dark_palette());

    EXPECT_EQ(picture(), light);
}

TEST(Look, AMessageWindowIsLegible)
{
    PopupDesk desk;
    desk.form.temp.set_text("On my way");
    desk.form.Check1.visible = true;
    desk.form.Command2.enabled = true;
    desk.show();

    // The sender's name is red and bold, as told; for that a contrast of three is held enough.
    EXPECT_GE(contrast_seen(desk.window, desk.control("messagefrom")), 3.0);
    for (char const* name : {"Label2", "message", "Check1", "Label1", "temp", "Command2", "fwd",
                             "printbtn", "Command1", "qb(13)"}) {
        EXPECT_GE(contrast_seen(desk.window, desk.control(name)), 4.5) << name;
    }
}

TEST(Look, TheFocusIsSeenOnEveryControl)
{
    MainDesk desk;
    fill(desk);
    for (char const* name : {"messagetext", "sendbtn", "Command3", "qb(1)", "recall", "away",
                             "spotx", "allusers", "Checkallusers", "options"}) {
        QWidget& control = desk.control(name);
        auto const picture = [&] {
            desk::settle();
            return desk.window.grab(QRect(control.mapTo(&desk.window, QPoint()), control.size()))
                .toImage();
        };
        desk.control("dissmissall").setFocus();
        QImage const without = picture();
        control.setFocus();
        EXPECT_NE(picture(), without) << name;
    }
}

TEST(Look, TheBoxesOfTheWindowLookLikeTheDesktops)
{
    MainDesk desk;

    EXPECT_TRUE(desk.window.styleSheet().isEmpty());
}

} // namespace
