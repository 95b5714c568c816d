#include "tests/qt/desk.h"

#include <QMenu>
#include <QPlainTextEdit>
#include <gtest/gtest.h>

namespace {

using desk::MainDesk;

struct FocusOfTheMessage : testing::Test, MainDesk {
    QPlainTextEdit& edit = control<QPlainTextEdit>("messagetext");
    controls::TextBox& model = form.messagetext;
    int got = 0;

    FocusOfTheMessage()
    {
        model.set_text("one\r\ntwo");
        show();
        control("sendbtn").setFocus();
        model.focus.got.attach([this] {
            ++got;
            model.caret_to_end();
        });
    }
};

TEST_F(FocusOfTheMessage, ComesFromTheForm)
{
    model.focus.set();
    EXPECT_FALSE(edit.hasFocus());
    show();

    EXPECT_TRUE(edit.hasFocus());
    EXPECT_EQ(got, 1) << "the form has told its handler itself";
}

TEST_F(FocusOfTheMessage, IsGivenOncePerRequest)
{
    model.focus.set();
    show();
    control("sendbtn").setFocus();
    show();

    EXPECT_FALSE(edit.hasFocus());
}

TEST_F(FocusOfTheMessage, ComesFromAPersonAndPutsTheCaretAtTheEnd)
{
    edit.setFocus(Qt::TabFocusReason);
    show();

    EXPECT_EQ(got, 1);
    EXPECT_EQ(edit.textCursor().position(), 7);
}

TEST_F(FocusOfTheMessage, AClickIntoTheTextPutsTheCaretThere)
{
    auto cursor = edit.textCursor();
    cursor.setPosition(1);
    QTest::mouseClick(edit.viewport(), Qt::LeftButton, {}, edit.cursorRect(cursor).center());
    show();

    EXPECT_EQ(got, 1);
    EXPECT_EQ(edit.textCursor().position(), 1);
    EXPECT_EQ(model.selection_start(), 1U);
}

TEST_F(FocusOfTheMessage, AMenuThatClosesKeepsTheSelection)
{
    edit.setFocus();
    model.select(0, 3);
    show();
    got = 0;
    QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(&edit, &back);
    QFocusEvent front(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&edit, &front);

    EXPECT_EQ(got, 0);
    EXPECT_EQ(model.selection_length(), 3U);
}

TEST_F(FocusOfTheMessage, AClickOnAUserHandsItOver)
{
    form.allusers.clicked.attach([this] { model.focus.set(); });
    desk::click_row(control<QListWidget>("allusers"), 1);
    show();

    EXPECT_TRUE(edit.hasFocus());
}

TEST(FocusOfANewWindow, IsInTheMessage)
{
    desk::Desk desk;
    qt::MainBinder binder(desk.forms, desk.codec, desk.units);

    EXPECT_EQ(binder.window().focusWidget()->objectName(), desk::words("messagetext"));
}

} // namespace
