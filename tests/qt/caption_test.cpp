#include "demo/caption.h"

#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

struct ACaption : testing::Test {
    ACaption()
    {
        QObject::connect(&caption.take_over, &QPushButton::clicked, &caption,
                         [this] { ++pressed; });
        caption.show();
        QTest::qWait(0);
    }

    /// By way of its window, as a mouse does: what is blocked does not get it.
    void press_take_over()
    {
        caption.keep_reachable();
        auto const middle = caption.take_over.geometry().center();
        QTest::mouseClick(caption.windowHandle(), Qt::LeftButton, {}, middle);
    }

    demo::Caption caption;
    int pressed = 0;
};

TEST_F(ACaption, CanBePressed)
{
    press_take_over();
    EXPECT_EQ(pressed, 1);
}

TEST_F(ACaption, CanBePressedBehindABox)
{
    QMessageBox box;
    QTimer::singleShot(0, &box, [&] {
        press_take_over();
        box.reject();
    });
    box.exec();
    EXPECT_EQ(pressed, 1);
}

TEST_F(ACaption, CanBePressedBehindABoxOverABoxAndWhenTheyAreGone)
{
    QMessageBox box;
    QMessageBox inner;
    QTimer::singleShot(0, &box, [&] {
        QTimer::singleShot(0, &inner, [&] {
            press_take_over();
            EXPECT_EQ(pressed, 1);
            inner.reject();
        });
        inner.exec();
        press_take_over();
        EXPECT_EQ(pressed, 2);
        box.reject();
    });
    box.exec();
    press_take_over();
    EXPECT_EQ(pressed, 3);
}

} // namespace
