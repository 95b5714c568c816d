#include "tests/qt/desk.h"
#include "tests/qt/toolkit_leaks.h"
#include "text/failure.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <gtest/gtest.h>

#include <set>

namespace {

using desk::MainDesk;
using desk::words;

constexpr std::array names{
    "title",    "Label3",      "Label4",     "helpbtn",     "spotmenu",      "spotmin",
    "spotx",    "SSTab1",      "allusers",   "List1",       "Checkallusers", "configgroups",
    "recall",   "dissmissall", "history",    "autorespond", "away",          "chatbtn",
    "options",  "messagetext", "Frame2",     "Label5",      "entlabel1",     "entlabel2",
    "Command3", "sendbtn",     "qb(1)",      "qb(2)",       "qb(3)",         "qb(4)",
    "qb(5)",    "qb(6)",       "qb(7)",      "qb(8)",       "qb(9)",         "qb(10)",
    "qb(11)",   "qb(12)",      "statustext", "cuetotal",    "traffic",
};

struct Main : testing::Test, MainDesk {};

TEST_F(Main, EveryControlBearsItsName)
{
    EXPECT_EQ(window.objectName(), words("frmMain"));
    for (char const* name : names) {
        EXPECT_EQ(window.findChildren<QWidget*>(words(name)).size(), 1) << name;
    }
}

TEST_F(Main, EveryControlIsCalledSomething)
{
    for (char const* name : names) {
        QWidget& widget = control(name);
        EXPECT_FALSE(widget.accessibleName().isEmpty()) << name;
        auto* const spoken = QAccessible::queryAccessibleInterface(&widget);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << name;
    }
}

TEST_F(Main, AButtonIsCalledByItsCaptionOrItsNumber)
{
    EXPECT_EQ(control("qb(1)").accessibleName(), words("Call on 1"));
    EXPECT_EQ(control("qb(11)").accessibleName(), words("Quick button 11"));
    EXPECT_EQ(control("recall").accessibleName(), words("Show the last message received"));
}

TEST_F(Main, AButtonShowsAndSaysTheHeadOfACaptionWithoutEnd)
{
    form.qb[1].caption = std::string(5000, 'x');
    form.qb[1].tool_tip = std::string(5000, 'y');
    show();
    auto const& button = static_cast<QPushButton&>(control("qb(1)"));
    EXPECT_EQ(button.text(), QString(1000, u'x'));
    EXPECT_EQ(button.toolTip(), QString(1000, u'y'));
}

TEST_F(Main, ALabelIsCalledByWhatItSays)
{
    EXPECT_EQ(control("statustext").accessibleName(), words("Status"));
    form.statustext.set_caption("Network Error");
    show();
    EXPECT_EQ(control("statustext").accessibleName(), words("Network Error"));
}

/// The controls that Tab goes through, from the message on until it is back there.
QStringList tab_round(QWidget& window)
{
    QStringList round;
    QWidget* here = window.findChild<QWidget*>(words("messagetext"));
    here->setFocus();
    do {
        round.append(here->objectName());
        QTest::keyClick(here, Qt::Key_Tab);
        here = window.focusWidget();
    } while (here->objectName() != round.first() && round.size() < 100);
    return round;
}

TEST_F(Main, TabGoesThroughEverythingInReadingOrder)
{
    form.autorespond.visible = form.away.visible = true;
    for (auto& button : form.qb) {
        button.enabled = true;
    }
    show();

    QStringList expected{words("messagetext"), words("Command3"), words("sendbtn")};
    for (int number = 1; number <= 12; ++number) {
        expected.append(QStringLiteral("qb(%1)").arg(number));
    }
    for (char const* name : {"recall", "dissmissall", "history", "autorespond", "away", "chatbtn",
                             "options", "Label4", "Label3", "helpbtn", "spotmenu", "spotmin",
                             "spotx", "qt_tabwidget_tabbar", "allusers", "Checkallusers"}) {
        expected.append(words(name));
    }
    EXPECT_EQ(tab_round(window), expected);
}

TEST_F(Main, TabFindsTheGroupsOnTheirTab)
{
    form.SSTab1.choose(1);
    show();
    QStringList const round = tab_round(window);

    EXPECT_TRUE(round.contains(words("List1")));
    EXPECT_TRUE(round.contains(words("configgroups")));
    EXPECT_FALSE(round.contains(words("allusers")));
}

TEST_F(Main, TheTabsReadAsTold)
{
    auto& tabs = control<QTabWidget>("SSTab1");

    EXPECT_EQ(tabs.tabText(0), words(" Users   "));
    EXPECT_EQ(tabs.tabText(1), words(" Groups  "));
}

TEST_F(Main, TabsGoBothWays)
{
    auto& tabs = control<QTabWidget>("SSTab1");
    tabs.setCurrentIndex(1);
    EXPECT_EQ(form.SSTab1.tab(), 1);

    form.SSTab1.choose(0);
    show();
    EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(Main, EveryButtonPressesItsOwn)
{
    form.autorespond.visible = true;
    std::vector<std::pair<char const*, controls::Button*>> buttons{
        {"sendbtn", &form.sendbtn}, {"Command3", &form.Command3},
        {"recall", &form.recall},   {"dissmissall", &form.dissmissall},
        {"history", &form.history}, {"autorespond", &form.autorespond},
        {"options", &form.options}, {"chatbtn", &form.chatbtn},
        {"helpbtn", &form.helpbtn}, {"spotmenu", &form.spotmenu},
        {"spotmin", &form.spotmin}, {"spotx", &form.spotx},
        {"qb(1)", &form.qb[1]},     {"qb(12)", &form.qb[12]},
    };
    form.qb[12].enabled = true;
    std::multiset<std::string> pressed;
    for (auto const& [name, button] : buttons) {
        button->clicked.attach([&pressed, name = name] { pressed.insert(name); });
    }
    show();
    for (auto const& [name, button] : buttons) {
        desk::click(control(name));
        EXPECT_EQ(pressed.count(name), 1U) << name;
    }
    EXPECT_EQ(pressed.size(), buttons.size());
}

TEST_F(Main, ALinkIsFollowedByAClickAndByEnter)
{
    for (auto const& [name, link] :
         {std::pair{"Label3", &form.Label3}, std::pair{"Label4", &form.Label4}}) {
        int follows = 0;
        link->clicked.attach([&follows] { ++follows; });
        desk::click(control(name));
        EXPECT_EQ(follows, 1) << name;
        control(name).setFocus();
        QTest::keyClick(&control(name), Qt::Key_Return);
        EXPECT_EQ(follows, 2) << name;
        QTest::keyClick(&control(name), Qt::Key_A);
        QTest::mouseClick(&control(name), Qt::RightButton);
        EXPECT_EQ(follows, 2) << name;
    }
}

TEST_F(Main, AClickOnALinkLeavesTheKeyboardWhereItIs)
{
    control("messagetext").setFocus();
    desk::click(control("Label3"));
    EXPECT_TRUE(control("messagetext").hasFocus());
}

TEST_F(Main, ItsCaptionsReadAsTold)
{
    EXPECT_EQ(control<QCheckBox>("Checkallusers").text(), words("Send to All Users"));
    for (auto const& [name, caption] :
         {std::pair{"configgroups", "Config Grps"}, std::pair{"history", "Show History"},
          std::pair{"sendbtn", "Send message"}, std::pair{"dissmissall", "Close all popups"}}) {
        EXPECT_EQ(control<QPushButton>(name).text(), words(caption)) << name;
    }
}

using FailingMain = desk::WithToolkitLeaks<Main>;

TEST_F(FailingMain, AFailureOfAButtonReachesWhoeverRunsTheEventLoop)
{
    form.sendbtn.clicked.attach([] { throw text::Failure("No route to host.", 113, "test"); });
    EXPECT_THROW(desk::click(control("sendbtn")), text::Failure);

    form.statustext.set_caption("Network Error");
    show();
    EXPECT_EQ(control<QLabel>("statustext").text(), words("Network Error"));
}

TEST_F(Main, ADisabledButtonCannotBePressed)
{
    int pressed = 0;
    form.qb[3].clicked.attach([&pressed] { ++pressed; });
    form.qb[3].enabled = false; // And the event loop has not waited since.
    desk::click(control("qb(3)"));

    EXPECT_EQ(pressed, 0);
}

TEST_F(Main, CheckBoxesGoBothWays)
{
    auto& box = control<QCheckBox>("Checkallusers");
    int told = 0;
    form.Checkallusers.clicked.attach([&told] { ++told; });
    desk::click(box);
    EXPECT_EQ(form.Checkallusers.value(), 1);
    EXPECT_EQ(told, 1);

    form.Checkallusers.set(0);
    show();
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(told, 2);
}

TEST_F(Main, AGreyBoxIsShownAndAClickMakesItPlain)
{
    auto& box = control<QCheckBox>("Checkallusers");
    form.Checkallusers.set(2);
    show();
    EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);

    desk::click(box);
    show();
    EXPECT_EQ(form.Checkallusers.value(), 0);
}

TEST_F(Main, AChoiceThatTheFormRefusesIsTakenBack)
{
    form.Checkallusers.clicked.attach([this] { form.Checkallusers.set(0); });
    desk::click(control("Checkallusers"));
    show();

    EXPECT_FALSE(control<QCheckBox>("Checkallusers").isChecked());
}

TEST_F(Main, ShowsTheBannerOnlyWhileTheFormDoes)
{
    EXPECT_FALSE(control("Frame2").isVisible());
    form.Label5.set_caption("Message length exceeded");
    form.Label5.visible = form.Frame2.visible = true;
    show();

    EXPECT_TRUE(control("Label5").isVisible());
    EXPECT_EQ(control<QLabel>("Label5").text(), words("Message length exceeded"));
}

TEST_F(Main, ShowsTheQueueAndItsGauge)
{
    form.cuetotal.set_caption("7");
    form.traffic.set(28);
    show();

    EXPECT_EQ(control<QLabel>("cuetotal").text(), words("7"));
    EXPECT_EQ(control<QProgressBar>("traffic").value(), 28);
}

TEST_F(Main, MarkupInATextIsCharacters)
{
    form.statustext.set_caption("<b>Message</b> sent & gone");
    form.qb[1].caption = "R&D <i>now</i>";
    form.qb[1].tool_tip = "<u>all</u>";
    show();

    EXPECT_EQ(control<QLabel>("statustext").text(), words("<b>Message</b> sent & gone"));
    EXPECT_EQ(control<QLabel>("statustext").textFormat(), Qt::PlainText);
    EXPECT_EQ(control<QPushButton>("qb(1)").text(), words("R&D <i>now</i>"));
    EXPECT_TRUE(control<QPushButton>("qb(1)").shortcut().isEmpty());
    EXPECT_TRUE(control("qb(1)").toolTip().contains(words("&lt;u&gt;")));
}

TEST_F(Main, AButtonWearsTheColoursOfTheForm)
{
    form.qb[2].background = {255, 0, 0};
    form.qb[2].text_colour = {255, 255, 0};
    show();

    auto const colours = control("qb(2)").palette();
    EXPECT_EQ(colours.color(QPalette::Button), QColor(255, 0, 0));
    EXPECT_EQ(colours.color(QPalette::ButtonText), QColor(255, 255, 0));
    QImage const seen = control("qb(2)").grab().toImage();
    EXPECT_EQ(seen.pixelColor(seen.width() / 2, 3), QColor(255, 0, 0));
}

TEST_F(Main, ThePointerOverAButtonFetchesItsTip)
{
    form.qb[2].pointed.attach([this] { form.qb[2].tool_tip = "You have a call on line 2"; });
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&control("qb(2)"), &enter);

    EXPECT_EQ(control("qb(2)").toolTip(), words("You have a call on line 2"));
}

TEST_F(Main, AGlyphTellsItsCaptionInTheTip)
{
    EXPECT_EQ(control("dissmissall").toolTip(), words("Close all popups"));
    EXPECT_EQ(control("options").toolTip(), words("Change Options, Settings, View Logs"));
}

TEST_F(Main, ALabelIsBroughtToTheScreenAtOnceWhenTheFormAsks)
{
    form.statustext.set_caption("Searching");
    form.statustext.repaint.run();

    EXPECT_EQ(control<QLabel>("statustext").text(), words("Searching"));
}

/// Counts what the toolkit has to do for a widget that has been written to.
class Writes : public QObject {
public:
    int count = 0;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        ++count;
        return QObject::eventFilter(object, event);
    }
};

TEST_F(Main, ShowingTwiceWritesNothing)
{
    form.qb[1].tool_tip = "<b>tip</b>";
    form.messagetext.set_text("one\rtwo\r\nthree \x81 \xa0");
    form.messagetext.select(2, 3);
    form.allusers.choose_many({0, 2}, 2);
    form.Checkallusers.set(2);
    show();
    desk::settle();

    Writes writes;
    QCoreApplication::instance()->installEventFilter(&writes);
    binder.show();
    binder.show();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::instance()->removeEventFilter(&writes);

    EXPECT_EQ(writes.count, 0);
}

} // namespace
