#include "tests/qt/desk.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>
#include <QWindow>
#include <gtest/gtest.h>

namespace {

using desk::PopupDesk;
using desk::words;

struct Place {
    char const* name;
    controls::Twips left;
    controls::Twips top;
    controls::Twips width;
    controls::Twips height;
};

constexpr std::array places{
    Place{"Label2", 90, 30, 1290, 270},       Place{"messagefrom", 1365, 30, 2745, 285},
    Place{"message", 90, 315, 5055, 2040},    Place{"Check1", 3915, 2415, 1185, 255},
    Place{"Label1", 90, 2430, 3270, 300},     Place{"temp", 97, 2745, 5055, 1035},
    Place{"Command2", 3795, 3870, 1350, 375}, Place{"fwd", 1935, 3885, 1350, 375},
    Place{"qb(13)", 75, 4350, 1665, 435},     Place{"qb(14)", 1785, 4350, 1665, 435},
    Place{"qb(15)", 3495, 4350, 1665, 435},   Place{"qb(16)", 75, 4830, 1665, 435},
    Place{"qb(17)", 1785, 4830, 1665, 435},   Place{"qb(18)", 3495, 4830, 1665, 435},
    Place{"qb(19)", 75, 5310, 1665, 435},     Place{"qb(20)", 1785, 5310, 1665, 435},
    Place{"qb(21)", 3495, 5310, 1665, 435},   Place{"qb(22)", 75, 5790, 1665, 435},
    Place{"qb(23)", 1785, 5790, 1665, 435},   Place{"qb(24)", 3495, 5790, 1665, 435},
    Place{"Label3", 90, 6300, 1035, 195},     Place{"printbtn", 75, 6360, 1350, 375},
    Place{"Command1", 3810, 6360, 1350, 375},
};

struct Message : testing::Test, PopupDesk {
    QTextEdit& message = control<QTextEdit>("message");
};

TEST_F(Message, EveryPartStandsInItsPlace)
{
    EXPECT_EQ(window.size(), QSize(units.pixels(5235), units.pixels(6855)));
    for (auto const& place : places) {
        QRect const wanted(units.pixels(place.left), units.pixels(place.top),
                           units.pixels(place.width), units.pixels(place.height));
        EXPECT_EQ(control(place.name).geometry(), wanted) << place.name;
    }
}

TEST_F(Message, EveryControlBearsItsNameAndIsCalledSomething)
{
    EXPECT_EQ(window.objectName(), words("popup0"));
    for (auto const& place : places) {
        EXPECT_EQ(window.findChildren<QWidget*>(words(place.name)).size(), 1) << place.name;
        EXPECT_FALSE(control(place.name).accessibleName().isEmpty()) << place.name;
    }
    EXPECT_FALSE(control("beensent").accessibleName().isEmpty());
}

TEST_F(Message, TheGroundAndTheFontAreAsTold)
{
    EXPECT_EQ(window.grab().toImage().pixelColor(window.width() / 2, 2), QColor(0xeb, 0xe9, 0xed));
    for (auto const& place : places) {
        EXPECT_EQ(control(place.name).font().family(), words("Arial")) << place.name;
    }
    EXPECT_TRUE(control("messagefrom").font().bold());
    EXPECT_EQ(control("messagefrom").palette().color(QPalette::WindowText), QColor(Qt::red));
}

TEST_F(Message, ABodyIsPlainText)
{
    EXPECT_EQ(message.toPlainText(), words("ALICE> Ready?\nANNA BERG> In a <b>minute</b>."));
    EXPECT_TRUE(message.isReadOnly());
}

TEST_F(Message, NobodyTypesIntoTheMessage)
{
    desk::type(message, "x");
    QTest::keyClick(&message, Qt::Key_Delete);

    EXPECT_EQ(form.message.text(), "ALICE> Ready?\r\nANNA BERG> In a <b>minute</b>.");
}

/// "colour:text" for each stretch of one colour.
QStringList runs_of(QTextEdit const& edit)
{
    QStringList runs;
    for (auto block = edit.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            auto const brush = part.fragment().charFormat().foreground();
            auto const colour = brush.style() == Qt::NoBrush ? QString() : brush.color().name();
            runs.append(colour + u':' + part.fragment().text());
        }
    }
    return runs;
}

TEST_F(Message, RunsHaveTheirColours)
{
    form.message.set_text("one\r\ntwo three\rfour");
    form.message.paint({0, 20, {255, 0, 0}});
    form.message.paint({5, 4, {0, 0, 0}});
    show();

    EXPECT_EQ(runs_of(message), QStringList({words("#ff0000:one"), words("#000000:two "),
                                             words("#ff0000:three"), words("#ff0000:four")}));
}

TEST_F(Message, ANewTextHasNoOldColours)
{
    form.message.paint({0, 5, {255, 0, 0}});
    show();
    form.message.set_text("new");
    show();

    EXPECT_EQ(runs_of(message), QStringList(words(":new")));
}

TEST_F(Message, TheNewestPartIsInView)
{
    std::string thread;
    for (int turn = 0; turn < 60; ++turn) {
        thread += "turn " + std::to_string(turn) + "\r\n";
    }
    form.message.set_text(thread);
    form.message.select(thread.size(), 0);
    show();

    EXPECT_EQ(message.textCursor().position(), message.document()->characterCount() - 1);
    EXPECT_TRUE(message.viewport()->rect().contains(message.cursorRect().center()));
}

TEST_F(Message, ASelectionForCopyingStays)
{
    message.setFocus();
    QTest::keyClick(&message, Qt::Key_A, Qt::ControlModifier);
    show();

    EXPECT_EQ(form.message.selection_length(), form.message.text().size());
    EXPECT_TRUE(message.textCursor().hasSelection());
}

TEST_F(Message, AReplyReachesTheForm)
{
    auto& reply = control("temp");
    desk::type(reply, "Fine\n");

    EXPECT_EQ(form.temp.text(), "Fine\r\n");
}

TEST_F(Message, EnterInTheReplyIsToldAtItsRelease)
{
    std::string text;
    form.temp.key_up = [&](controls::Key key) {
        text = form.temp.text() + std::to_string(key.code) + "," + std::to_string(key.mask);
    };
    QTest::keyClick(&control("temp"), Qt::Key_Return, Qt::ControlModifier);

    EXPECT_EQ(text, "\r\n13,2");
}

TEST_F(Message, ButtonsPressTheirOwn)
{
    std::vector<std::pair<char const*, controls::Button*>> const buttons{
        {"Command1", &form.Command1}, {"Command2", &form.Command2}, {"fwd", &form.fwd},
        {"printbtn", &form.printbtn}, {"qb(13)", &form.qb[0]},      {"qb(21)", &form.qb[8]},
    };
    form.Command2.enabled = true;
    show();
    for (auto const& [name, button] : buttons) {
        int pressed = 0;
        button->clicked.attach([&pressed] { ++pressed; });
        desk::click(control(name));
        EXPECT_EQ(pressed, 1) << name;
        button->clicked.attach({});
    }
}

TEST_F(Message, ACloseRequestPressesClose)
{
    int closed = 0;
    form.Command1.clicked.attach([&] {
        ++closed;
        form.window.hide();
    });
    window.windowHandle()->close();

    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Message, ACloseRequestAloneHidesNothing)
{
    window.windowHandle()->close();

    EXPECT_TRUE(window.isVisible());
}

TEST_F(Message, AClickOnTheHeadingColoursTheMessage)
{
    int coloured = 0;
    form.colourmessage.attach([&coloured] { ++coloured; });
    desk::click(control("Label1"));

    EXPECT_EQ(coloured, 1);
}

TEST_F(Message, ActivationIsTold)
{
    int activations = 0;
    form.window.activated.attach([&] {
        ++activations;
        form.temp.focus.set();
    });
    desk::MainDesk const other; // Takes the keyboard first.
    EXPECT_EQ(activations, 0);
    activate();

    EXPECT_EQ(activations, 1);
    EXPECT_TRUE(control("temp").hasFocus());
}

TEST_F(Message, AHiddenWindowIsMadeEqualAsItComesUp)
{
    form.window.hide();
    form.message.set_text("next one");
    form.Check1.visible = true;
    show();
    form.window.show();

    EXPECT_EQ(message.toPlainText(), words("next one"));
    EXPECT_TRUE(control("Check1").isVisible());
}

TEST_F(Message, TheNoteIsSeenAboveTheButtonThatItReachesInto)
{
    auto const top_of_button = [this] {
        QWidget const& button = control("printbtn");
        QImage const seen = window.grab(button.geometry()).toImage();
        return seen.pixelColor(seen.width() - 10, 3);
    };
    EXPECT_NE(top_of_button(), QColor(0xeb, 0xe9, 0xed));

    form.Label3.set_caption("(Sent to ALL)");
    show();
    EXPECT_EQ(top_of_button(), QColor(0xeb, 0xe9, 0xed));
    int printed = 0;
    form.printbtn.clicked.attach([&printed] { ++printed; });
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      control("Label3").geometry().bottomLeft() + QPoint(3, -1));
    EXPECT_EQ(printed, 1) << "the button takes the click through the note";
}

TEST_F(Message, TabGoesFromTheReplyToTheButtons)
{
    form.Command2.enabled = true;
    show();
    activate();
    control("temp").setFocus();
    QStringList round;
    for (int step = 0; step < 14; ++step) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        round.append(window.focusWidget()->objectName());
    }
    EXPECT_EQ(round.join(u' '),
              words("Command2 fwd qb(13) qb(14) qb(15) qb(16) qb(17) qb(18) qb(19) qb(20) qb(21) "
                    "printbtn Command1 message"));
}

TEST_F(Message, IsAWindowOfItsOwnThatCannotGrow)
{
    EXPECT_EQ(window.windowType(), Qt::Window) << "what the task bar lists";
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
}

TEST_F(Message, ItsPlaceIsTheWindowManagers)
{
    form.window.place(15, 15);
    QPoint const before = window.pos();
    show();

    EXPECT_EQ(window.pos(), before);
    EXPECT_FALSE(window.testAttribute(Qt::WA_Moved));
}

TEST_F(Message, ShowingTwiceKeepsEverything)
{
    form.message.paint({0, 5, {255, 0, 0}});
    show();
    QImage const before = window.grab().toImage();
    int const revision = message.document()->revision();
    binder.show();

    EXPECT_EQ(message.document()->revision(), revision);
    EXPECT_EQ(window.grab().toImage(), before);
}

} // namespace
