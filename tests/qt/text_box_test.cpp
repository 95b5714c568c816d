#include "tests/qt/desk.h"
#include "tests/qt/toolkit_leaks.h"
#include "text/failure.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPlainTextEdit>
#include <gtest/gtest.h>

namespace {

using desk::MainDesk;
using desk::words;

struct MessageBox : testing::Test, MainDesk {
    QPlainTextEdit& edit = control<QPlainTextEdit>("messagetext");
    controls::TextBox& model = form.messagetext;
    int changes = 0;

    MessageBox()
    {
        model.changed.attach([this] { ++changes; });
    }

    void put(char const* text)
    {
        model.set_text(text);
        model.caret_to_end();
        show();
        changes = 0;
    }
};

TEST_F(MessageBox, WhatAPersonTypesReachesTheForm)
{
    desk::type(edit, "Hi");

    EXPECT_EQ(model.text(), "Hi");
    EXPECT_EQ(model.selection_start(), 2U);
    EXPECT_EQ(changes, 2);
}

TEST_F(MessageBox, ATextFromCodeIsShownWithItsCaret)
{
    model.set_text("one\r\ntwo");
    model.select(5, 2);
    show();

    EXPECT_EQ(edit.toPlainText(), words("one\ntwo"));
    EXPECT_EQ(edit.textCursor().selectedText(), words("tw"));
}

TEST_F(MessageBox, ShowingTellsNothing)
{
    model.set_text("one\r\ntwo\rthree");
    changes = 0;
    show();
    show();

    EXPECT_EQ(changes, 0);
    EXPECT_EQ(model.text(), "one\r\ntwo\rthree");
}

TEST_F(MessageBox, ALoneCrStaysUnlessSomebodyTakesIt)
{
    put("one\rtwo\r");
    desk::type(edit, "!");

    EXPECT_EQ(model.text(), "one\rtwo\r!");
    EXPECT_EQ(edit.toPlainText(), words("one\ntwo\n!"));

    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(model.text(), "one\rtwo");
}

TEST_F(MessageBox, BackspaceTakesALineEndOfTwoCharactersWhole)
{
    put("one\r\n");
    QTest::keyClick(&edit, Qt::Key_Backspace);

    EXPECT_EQ(model.text(), "one");
}

TEST_F(MessageBox, ACrAndAnLfThatComeTogetherAreOneLineEndOnTheScreenToo)
{
    put("a\rX\nb");
    model.select(3, 0);
    show();
    QTest::keyClick(&edit, Qt::Key_Backspace);

    EXPECT_EQ(model.text(), "a\r\nb");
    EXPECT_EQ(edit.toPlainText(), words("a\nb"));
}

TEST_F(MessageBox, WhatTheCharacterSetLacksIsAQuestionMarkOnTheScreenAtOnce)
{
    desk::type(edit, "5 € 語!");

    EXPECT_EQ(model.text(), "5 \x80 ?!");
    EXPECT_EQ(edit.toPlainText(), words("5 € ?!"));
    EXPECT_EQ(model.selection_start(), 6U);
}

TEST_F(MessageBox, ACharacterOfTwoHalvesIsOneQuestionMark)
{
    put("ab");
    model.select(1, 0);
    show();
    QApplication::clipboard()->setText(words("😀"));
    edit.paste();
    desk::type(edit, "!");

    EXPECT_EQ(model.text(), "a?!b");
    EXPECT_EQ(edit.toPlainText(), words("a?!b"));
}

TEST_F(MessageBox, AnInputMethodTypesTheSameWay)
{
    put("a");
    QInputMethodEvent composed;
    composed.setCommitString(words("é語"));
    QCoreApplication::sendEvent(&edit, &composed);

    EXPECT_EQ(model.text(), "a\xe9?");
    EXPECT_EQ(edit.toPlainText(), words("aé?"));
}

TEST_F(MessageBox, AnAccentThatIsTypedBehindItsLetterIsOneWithIt)
{
    put("Ame");
    desk::type(edit, "\u0301");
    EXPECT_EQ(model.text(), "Am\xe9");
    EXPECT_EQ(edit.toPlainText(), words("Am\u00e9"));

    edit.undo();
    EXPECT_EQ(model.text(), "Ame");
}

TEST_F(MessageBox, AnAccentThatNoLetterTakesIsAQuestionMark)
{
    put("x");
    desk::type(edit, "\u0301");
    EXPECT_EQ(model.text(), "x?");
    put("");
    desk::type(edit, "\u0301");
    EXPECT_EQ(model.text(), "?");
}

TEST_F(MessageBox, AccentsThatArePastedApartComeTogether)
{
    put("");
    QApplication::clipboard()->setText(words("Ame\u0301lie"));
    edit.paste();
    EXPECT_EQ(model.text(), "Am\xe9lie");

    put("e");
    QInputMethodEvent accent;
    accent.setCommitString(words("\u0301"));
    QCoreApplication::sendEvent(&edit, &accent);
    EXPECT_EQ(model.text(), "\xe9");
}

TEST_F(MessageBox, ANoBreakSpaceStaysOne)
{
    put("10\xa0"
        "km");
    desk::type(edit, "!");

    EXPECT_EQ(model.text(), "10\xa0"
                            "km!");
}

TEST_F(MessageBox, UndoTakesTheLetterBackAndNotItsQuestionMarkAlone)
{
    put("a");
    desk::type(edit, "語");
    edit.undo();

    EXPECT_EQ(model.text(), "a");
}

TEST_F(MessageBox, ATextFromCodeCannotBeUndoneIntoTheOldOne)
{
    desk::type(edit, "for Bob only");
    model.set_text("");
    show();
    edit.undo();

    EXPECT_EQ(model.text(), "");
}

TEST_F(MessageBox, PastedMarkupComesInAsPlainText)
{
    auto* const rich = new QMimeData;
    rich->setHtml(words("<b>bold</b><br>next"));
    QApplication::clipboard()->setMimeData(rich);
    edit.paste();

    EXPECT_EQ(model.text(), "bold\r\nnext");
}

TEST_F(MessageBox, PastedTextIsNotReadAsMarkup)
{
    QApplication::clipboard()->setText(words("<b>a</b>\r\nb"));
    edit.paste();

    EXPECT_EQ(model.text(), "<b>a</b>\r\nb");
}

TEST_F(MessageBox, TabGoesOnAndTypesNothing)
{
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Tab);

    EXPECT_EQ(model.text(), "");
    EXPECT_FALSE(edit.hasFocus());
}

TEST_F(MessageBox, TheCaretOfThePersonIsTheFormsCaret)
{
    put("one\r\ntwo");
    QTest::keyClick(&edit, Qt::Key_Home);
    EXPECT_EQ(model.selection_start(), 5U);

    QTest::keyClick(&edit, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(model.selection_start(), 5U);
    EXPECT_EQ(model.selection_length(), 3U);
}

TEST_F(MessageBox, ASelectionMadeBackwardsStaysAsItIsWhenShown)
{
    put("one");
    QTest::keyClick(&edit, Qt::Key_Left, Qt::ShiftModifier);
    show();

    EXPECT_EQ(edit.textCursor().position(), 2);
    EXPECT_EQ(edit.textCursor().anchor(), 3);
}

TEST_F(MessageBox, NobodyTypesIntoATextThatIsGone)
{
    desk::type(edit, "sent");
    model.set_text(""); // And the event loop has not waited since.
    desk::type(edit, "x");

    EXPECT_EQ(model.text(), "x");
    EXPECT_EQ(edit.toPlainText(), words("x"));
}

TEST_F(MessageBox, AHandlerMayReplaceWhatIsTyped)
{
    model.changed.attach([this] {
        if (model.text() == "a") {
            model.set_text("other");
        }
    });
    desk::type(edit, "a");
    show();

    EXPECT_EQ(model.text(), "other");
    EXPECT_EQ(edit.toPlainText(), words("other"));
}

using FailingMessageBox = desk::WithToolkitLeaks<MessageBox>;

TEST_F(FailingMessageBox, AFailureOfAHandlerLeavesFormAndScreenEqual)
{
    model.changed.attach([] { throw text::Failure("No route to host.", 113, "test"); });
    EXPECT_THROW(desk::type(edit, "a"), text::Failure);
    model.changed.attach({});
    show();
    EXPECT_EQ(edit.toPlainText(), words("a"));

    desk::type(edit, "b");
    EXPECT_EQ(model.text().size(), 2U);
    EXPECT_EQ(edit.toPlainText(), words(model.text().c_str()));
}

TEST_F(MessageBox, FollowsTheFontSizeOfTheForm)
{
    model.font_size = 14;
    show();

    EXPECT_EQ(edit.font().pointSize(), 14);
}

} // namespace
