#include "controls/basic.h"
#include "tests/unit/counter.h"

#include <gtest/gtest.h>

namespace {

using unit::Counter;

TEST(Command, RunsWhatIsAttachedAndNothingBeforeThat)
{
    controls::Command command;
    EXPECT_FALSE(command.attached());
    command.run();

    Counter const runs(command);
    command.run();
    command.run();

    EXPECT_TRUE(command.attached());
    EXPECT_EQ(runs.count(), 2);
}

TEST(Command, TheLastOneAttachedIsTheOne)
{
    controls::Command command;
    Counter const first(command);
    Counter const second(command);

    command.run();

    EXPECT_EQ(first.count(), 0);
    EXPECT_EQ(second.count(), 1);
}

TEST(Focus, EveryCallIsANewRequest)
{
    controls::Focus focus;
    Counter const got(focus.got);

    focus.set();
    focus.set();

    EXPECT_EQ(focus.requests(), 2U);
    EXPECT_EQ(got.count(), 2);
}

TEST(Label, AChangeIsToldOnceAndSettingWhatIsThereTellsNothing)
{
    controls::Label label("Response");
    Counter const told(label.changed);

    label.set_caption("Response");
    EXPECT_EQ(told.count(), 0);

    label.set_caption("Sent");
    label.set_caption("Sent");
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(label.caption(), "Sent");
}

TEST(Label, TheHandlerSeesTheNewCaption)
{
    controls::Label label("old");
    std::string seen;
    label.changed.attach([&] { seen = label.caption(); });

    label.set_caption("new");

    EXPECT_EQ(seen, "new");
}

TEST(Button, EveryPressIsAPress)
{
    controls::Button button("Send message");
    Counter const pressed(button.clicked);

    button.click();
    button.click();

    EXPECT_EQ(pressed.count(), 2);
}

TEST(Button, ADisabledButtonIsStillPressedByARoutine)
{
    controls::Button button;
    button.enabled = false;
    Counter const pressed(button.clicked);

    button.click();

    EXPECT_EQ(pressed.count(), 1);
}

TEST(CheckBox, AChangeIsToldOnceAndSettingWhatIsThereTellsNothing)
{
    controls::CheckBox box(1, "Reply to All");
    Counter const told(box.clicked);

    box.set(1);
    EXPECT_EQ(told.count(), 0);

    box.set(0);
    box.set(0);
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(box.value(), 0);
}

TEST(CheckBox, TheHandlerSeesTheNewValueAndMayChangeItAgain)
{
    controls::CheckBox box;
    int told = 0;
    box.clicked.attach([&] {
        ++told;
        box.set(0);
    });

    box.set(1);

    EXPECT_EQ(told, 2);
    EXPECT_EQ(box.value(), 0);
}

TEST(CheckBox, OnlyOneIsOn)
{
    EXPECT_TRUE(controls::CheckBox(1).on());
    EXPECT_FALSE(controls::CheckBox(0).on());
    EXPECT_FALSE(controls::CheckBox(2).on());
}

TEST(ProgressBar, AChangeIsToldOnceAndSettingWhatIsThereTellsNothing)
{
    controls::ProgressBar bar;
    Counter const told(bar.changed);

    bar.set(0);
    EXPECT_EQ(told.count(), 0);

    bar.set(15);
    bar.set(15);
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(bar.value(), 15);
}

TEST(Tabs, ChoosingTheTabOnShowTellsNothing)
{
    controls::Tabs tabs;
    Counter const told(tabs.clicked);

    tabs.choose(0);
    EXPECT_EQ(told.count(), 0);

    tabs.choose(1);
    tabs.choose(1);
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(tabs.tab(), 1);
}

TEST(Timer, IsDisabledAtFirst)
{
    EXPECT_FALSE(controls::Timer(120).enabled());
    EXPECT_EQ(controls::Timer(120).interval_ms, 120);
}

TEST(Timer, EnablingOneThatRunsChangesNothing)
{
    controls::Timer timer(120);
    Counter const switched(timer.switched);

    timer.enable();
    timer.enable();

    EXPECT_TRUE(timer.enabled());
    EXPECT_EQ(switched.count(), 1);
}

TEST(Timer, DisablingOneThatStandsTellsNothing)
{
    controls::Timer timer(120);
    Counter const switched(timer.switched);

    timer.disable();
    EXPECT_EQ(switched.count(), 0);

    timer.enable();
    timer.disable();
    timer.disable();
    EXPECT_FALSE(timer.enabled());
    EXPECT_EQ(switched.count(), 2);
}

} // namespace
