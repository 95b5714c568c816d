#include "qt/splash_binder.h"
#include "tests/qt/desk.h"

#include <QProgressBar>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

struct Splash : testing::Test, desk::Desk {
    qt::SplashBinder binder{forms.loading, codec, units};
    QProgressBar& bar = desk::in<QProgressBar>(binder.window(), "ProgressBar1");
};

TEST_F(Splash, ComesAndGoesWithTheForm)
{
    EXPECT_EQ(binder.window().objectName(), desk::words("loading"));
    forms.loading.window.show();
    EXPECT_TRUE(binder.window().isVisible());
    forms.loading.window.hide();
    EXPECT_FALSE(binder.window().isVisible());
}

TEST_F(Splash, FollowsTheProgressWithoutTheEventLoop)
{
    forms.loading.window.show();
    forms.loading.window.repaint.run();
    forms.loading.ProgressBar1.set(70);

    EXPECT_EQ(bar.value(), 70);
    EXPECT_FALSE(bar.accessibleName().isEmpty());
}

TEST_F(Splash, ACloseRequestDoesNothing)
{
    forms.loading.window.show();
    binder.window().close();

    EXPECT_TRUE(binder.window().isVisible());
}

} // namespace
