#include "tests/qt/desk.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

using desk::MainDesk;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

struct Keys : testing::Test, MainDesk {
    QPlainTextEdit& edit = control<QPlainTextEdit>("messagetext");
    std::vector<std::pair<int, int>> released; ///< code and mask

    Keys()
    {
        form.messagetext.key_up = [this](controls::Key key) {
            released.emplace_back(key.code, key.mask);
        };
    }
};

TEST_F(Keys, EnterMakesALineBreakWhateverIsHeldWithIt)
{
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(form.messagetext.text(), "\r\n");
    QTest::keyClick(&edit, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(form.messagetext.text(), "\r\n\r\n");
    QTest::keyClick(&edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(form.messagetext.text(), "\r\n\r\n\r\n");
    QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(form.messagetext.text(), "\r\n\r\n\r\n\r\n");
}

TEST_F(Keys, TheBreakIsMadeAtThePressAndTheKeyToldAtTheRelease)
{
    QTest::keyPress(&edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(form.messagetext.text(), "\r\n");
    EXPECT_THAT(released, IsEmpty());

    QTest::keyRelease(&edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_THAT(released, ElementsAre(Pair(13, 2)));
}

TEST_F(Keys, TheMaskIsThatOfTheRelease)
{
    QTest::keyPress(&edit, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyRelease(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(&edit, Qt::Key_Enter, Qt::AltModifier | Qt::ControlModifier);

    EXPECT_THAT(released, ElementsAre(Pair(13, 0), Pair(13, 1), Pair(13, 6)));
}

TEST_F(Keys, FunctionKeysAreToldByTheirCodes)
{
    QTest::keyClick(&edit, Qt::Key_F1);
    QTest::keyClick(&edit, Qt::Key_F12);
    QTest::keyClick(&edit, Qt::Key_F13);

    EXPECT_THAT(released, ElementsAre(Pair(112, 0), Pair(123, 0)));
    EXPECT_EQ(form.messagetext.text(), "");
}

TEST_F(Keys, OtherKeysAreNotTold)
{
    desk::type(edit, "ab");
    QTest::keyClick(&edit, Qt::Key_Left);

    EXPECT_THAT(released, IsEmpty());
}

TEST_F(Keys, AKeyThatRepeatsIsReleasedOnce)
{
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QTest::keyPress(&edit, Qt::Key_Return);
    QCoreApplication::sendEvent(&edit, &repeated);
    EXPECT_THAT(released, IsEmpty());

    QTest::keyRelease(&edit, Qt::Key_Return);
    EXPECT_THAT(released, ElementsAre(Pair(13, 0)));
}

TEST_F(Keys, AReleaseWithoutItsPressDoesNotCount)
{
    QTest::keyRelease(&edit, Qt::Key_Return);

    EXPECT_THAT(released, IsEmpty());
}

TEST_F(Keys, TheEnterThatClosesABoxSendsNothing)
{
    edit.setFocus();
    QDialog box(&window);
    QTimer::singleShot(0, &box, [&box] {
        QTest::keyPress(&box, Qt::Key_Return);
        box.accept();
    });
    box.exec();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyRelease(&edit, Qt::Key_Return);

    EXPECT_THAT(released, IsEmpty());
}

TEST_F(Keys, AFocusThatHasBeenAwayForgetsThePress)
{
    edit.setFocus();
    QTest::keyPress(&edit, Qt::Key_Return);
    control("sendbtn").setFocus();
    edit.setFocus();
    QTest::keyRelease(&edit, Qt::Key_Return);

    EXPECT_THAT(released, IsEmpty());
}

TEST_F(Keys, ASendAtTheReleaseLeavesAnEmptyBox)
{
    std::string sent;
    form.messagetext.key_up = [&](controls::Key) {
        form.messagetext.cut_last_character();
        sent = form.messagetext.text();
        form.messagetext.set_text("");
    };
    desk::type(edit, "Hello\n");
    show();

    EXPECT_EQ(sent, "Hello\r");
    EXPECT_EQ(edit.toPlainText(), QString());
}

TEST_F(Keys, EnterPressesAButtonThatHasTheFocus)
{
    int sent = 0;
    form.sendbtn.clicked.attach([&sent] { ++sent; });
    QTest::keyClick(&control("sendbtn"), Qt::Key_Return);
    QTest::keyClick(&control("sendbtn"), Qt::Key_Space);

    EXPECT_EQ(sent, 2);
}

} // namespace
