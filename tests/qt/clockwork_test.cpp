#include "qt/clockwork.h"
#include "tests/qt/desk.h"

#include <QTimer>

namespace {

struct Clockwork : testing::Test, desk::Desk {
    [[nodiscard]] QTimer& timer(char const* name)
    {
        auto* const found = owner.findChild<QTimer*>(QString::fromLatin1(name));
        if (found == nullptr) {
            throw std::runtime_error(std::string("no timer ") + name);
        }
        return *found;
    }

    forms::FrmMain& frmMain = forms.frmMain;
    QObject owner;
    qt::Clockwork clockwork{frmMain, owner};
};

TEST_F(Clockwork, TheQueuesTimerIsExact)
{
    EXPECT_EQ(timer("Timer3").interval(), 120);
    EXPECT_EQ(timer("Timer3").timerType(), Qt::PreciseTimer) << "a coarse one ticks every 125";
}

TEST_F(Clockwork, OnlyWhatIsSwitchedOnRuns)
{
    EXPECT_FALSE(timer("Timer3").isActive());
    frmMain.Timer3.enable();
    EXPECT_TRUE(timer("Timer3").isActive());
    EXPECT_FALSE(timer("Timer1").isActive());
    frmMain.Timer3.disable();
    EXPECT_FALSE(timer("Timer3").isActive());
}

TEST_F(Clockwork, ATickIsTheFormsTick)
{
    int ticks = 0;
    frmMain.Timer3.tick.attach([&] {
        ++ticks;
        frmMain.Timer3.disable();
    });
    frmMain.Timer3.enable();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }, 5000));
    QTest::qWait(2 * 120);
    EXPECT_EQ(ticks, 1) << "switched off in its own tick";
}

TEST_F(Clockwork, NothingStartsOnceItHasStopped)
{
    frmMain.Timer1.enable();
    clockwork.stop();
    frmMain.Timer3.enable();
    EXPECT_FALSE(timer("Timer1").isActive());
    EXPECT_FALSE(timer("Timer3").isActive());
}

} // namespace
