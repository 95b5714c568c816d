#include "qt/button.h"
#include "tests/qt/desk.h"

#include <QCheckBox>
#include <QLabel>
#include <QProcess>
#include <QTabBar>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

using desk::MainDesk;
using desk::PopupDesk;
using desk::words;

void expect_whole(QLabel const& label)
{
    auto const metrics = label.fontMetrics();
    std::string const what = label.text().toStdString();
    EXPECT_LE(metrics.horizontalAdvance(label.text()), label.contentsRect().width()) << what;
    EXPECT_LE(metrics.tightBoundingRect(label.text()).height(), label.contentsRect().height())
        << what;
}

void expect_whole(qt::Button const& button)
{
    std::string const what = button.text().toStdString();
    bool const told_by_its_tip = button.toolTip() == button.text() || !button.toolTip().isEmpty();
    EXPECT_TRUE(button.shows_whole_caption() || told_by_its_tip) << what;
    EXPECT_LE(button.fontMetrics().height(), button.height()) << what;
}

/// Every text that is on show is whole, and nothing reaches out of the window.
void expect_all_whole(QWidget const& window)
{
    for (QWidget const* part : window.findChildren<QWidget*>()) {
        if (!part->isVisible()) {
            continue;
        }
        QRect const place(part->mapTo(&window, QPoint()), part->size());
        EXPECT_TRUE(window.rect().contains(place)) << part->objectName().toStdString();
        if (auto const* const label = qobject_cast<QLabel const*>(part)) {
            expect_whole(*label);
        } else if (auto const* const button = qobject_cast<qt::Button const*>(part)) {
            expect_whole(*button);
        } else if (auto const* const box = qobject_cast<QCheckBox const*>(part)) {
            EXPECT_LE(box->sizeHint().width(), box->width()) << box->text().toStdString();
            EXPECT_LE(box->fontMetrics().tightBoundingRect(box->text()).height(), box->height());
        }
    }
}

TEST(Layout, TheMainWindowShowsEverythingWhole)
{
    MainDesk desk;
    desk.form.autorespond.visible = desk.form.away.visible = true;
    desk.form.Label5.set_caption("Auto Respond On: I'm away from my desk");
    desk.form.Label5.visible = desk.form.Frame2.visible = true;
    desk.form.entlabel1.set_caption("Press Enter to Send");
    desk.form.entlabel2.set_caption("Ctrl+Enter for new line");
    desk.form.statustext.set_caption("Message sent to Alice Meyer");
    desk.form.cuetotal.set_caption("1000");
    desk.show();

    expect_all_whole(desk.window);
    for (char const* name : {"qb(1)", "qb(3)", "qb(8)", "qb(10)", "sendbtn", "chatbtn"}) {
        EXPECT_TRUE(desk.control<qt::Button>(name).shows_whole_caption()) << name;
    }
    auto const& bar = *desk.control<QTabWidget>("SSTab1").tabBar();
    EXPECT_LE(bar.tabRect(1).right(), bar.parentWidget()->width());
    EXPECT_GE(desk.control("messagetext").height(), 3 * desk.window.fontMetrics().lineSpacing());
}

TEST(Layout, TheGroupsTabShowsEverythingWhole)
{
    MainDesk desk;
    desk.form.SSTab1.choose(1);
    desk.form.entlabel1.set_caption("Press Ctrl+Enter to Send");
    desk.show();

    expect_all_whole(desk.window);
    EXPECT_TRUE(desk.control<qt::Button>("configgroups").shows_whole_caption());
}

TEST(Layout, AMessageWindowShowsEverythingWhole)
{
    PopupDesk desk;
    desk.form.Label1.set_caption("Message length exceeded");
    desk.form.Label3.set_caption("(Sent to ALL)");
    desk.form.Check1.visible = desk.form.beensent.visible = true;
    desk.show();

    expect_all_whole(desk.window);
    for (auto const* button : desk.window.findChildren<qt::Button*>()) {
        EXPECT_TRUE(button->shows_whole_caption()) << button->text().toStdString();
    }
}

TEST(Layout, ALongCaptionOrStatusIsWholeInItsTip)
{
    MainDesk desk;
    desk.form.qb[1].caption = "A caption that no button of this size could ever show";
    desk.show();

    EXPECT_FALSE(desk.control<qt::Button>("qb(1)").shows_whole_caption());
    EXPECT_EQ(desk.control("qb(1)").toolTip(),
              words("A caption that no button of this size could ever show"));
}

TEST(Layout, PartsOfTheMainWindowDoNotCoverEachOther)
{
    MainDesk desk;
    desk.form.autorespond.visible = desk.form.away.visible = true;
    desk.form.Label5.visible = desk.form.Frame2.visible = true;
    desk.form.Label5.set_caption("Message length exceeded");
    desk.show();

    QList<QWidget*> parts;
    for (QWidget* part : desk.window.findChildren<QWidget*>()) {
        if (part->isVisible() && part->parentWidget()->parentWidget() == &desk.window) {
            parts.append(part);
        }
    }
    ASSERT_GT(parts.size(), 25);
    for (QWidget const* one : parts) {
        for (QWidget const* other : parts) {
            EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()))
                << one->objectName().toStdString() << " and " << other->objectName().toStdString();
        }
    }
}

/// The tests above on a screen of another size.
void run_again(char const* setting, char const* value)
{
    auto surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.insert(words(setting), words(value));
    QProcess again;
    again.setProcessEnvironment(surroundings);
    again.setProcessChannelMode(QProcess::MergedChannels);
    again.start(QCoreApplication::applicationFilePath(),
                {words("--gtest_filter=Layout.*Whole*:Layout.Parts*:Message.EveryPart*")});
    ASSERT_TRUE(again.waitForFinished(60000));
    QByteArray const told = again.readAll();
    EXPECT_EQ(again.exitCode(), 0) << told.constData();
    EXPECT_TRUE(told.contains("[  PASSED  ] 6 tests")) << told.constData();
}

TEST(Layout, HoldsAtOneAndAHalf)
{
    run_again("QT_SCALE_FACTOR", "1.5");
}

TEST(Layout, HoldsAtTwiceTheSize)
{
    run_again("QT_SCALE_FACTOR", "2");
}

TEST(Layout, HoldsOnAScreenOfTwiceTheResolution)
{
    run_again("QT_FONT_DPI", "192");
}

TEST(Layout, HoldsOnAScreenOfAQuarterMore)
{
    run_again("QT_FONT_DPI", "120");
}

} // namespace
