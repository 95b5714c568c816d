#include "tests/qt/frames.h"

#include <QApplication>
#include <QTimer>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

/// Settings, dialog and groups together, as they stand in the program.
struct Modal : testing::Test, desk::Desk {
    Modal()
    {
        forms.settings.cancelbtn.clicked.attach([this] { forms.settings.window.hide(); });
        forms.fwdtofrm.cancelbtn.clicked.attach([this] { forms.fwdtofrm.window.hide(); });
        forms.groups.Command6.clicked.attach([this] { forms.groups.window.hide(); });
        main.show();
    }

    void show()
    {
        settings.show();
        forward.show();
        groups.show();
        desk::settle();
    }

    /// Runs something behind the window that is in the way, a moment later.
    void later(std::function<void()> what)
    {
        QTimer::singleShot(20, &main, [this, what = std::move(what)] {
            show();
            what();
        });
    }

    QWidget main;
    qt::SettingsBinder settings{forms.settings, main, codec, units};
    qt::ForwardBinder forward{forms.fwdtofrm, settings.window(), codec, units};
    qt::GroupsBinder groups{forms.groups, main, codec, units};
    std::vector<std::string> story;
};

TEST_F(Modal, ItsShowingWaitsUntilItIsHidden)
{
    later([this] {
        story.emplace_back("behind");
        EXPECT_EQ(QApplication::activeModalWidget(), &settings.window());
        forms.settings.cancelbtn.click();
    });
    forms.settings.window.show_modal();
    story.emplace_back("after");

    EXPECT_THAT(story, ElementsAre("behind", "after"));
    EXPECT_FALSE(settings.window().isVisible());
    EXPECT_FALSE(forms.settings.window.modal);
}

TEST_F(Modal, TheProgramGoesOnBehindIt)
{
    int ticks = 0;
    QTimer timer;
    timer.setInterval(5);
    QObject::connect(&timer, &QTimer::timeout, [this, &ticks] {
        forms.settings.friendlyname.set_caption("tick " + std::to_string(++ticks));
        show();
        if (ticks == 5) {
            forms.settings.window.hide();
        }
    });
    timer.start();
    forms.settings.window.show_modal();

    EXPECT_EQ(ticks, 5);
}

TEST_F(Modal, ADialogInFrontOfItWaitsByItself)
{
    later([this] {
        later([this] {
            story.emplace_back("dialog");
            EXPECT_EQ(QApplication::activeModalWidget(), &forward.window());
            forms.fwdtofrm.cancelbtn.click();
        });
        forms.fwdtofrm.window.show_modal();
        story.emplace_back("settings");
        EXPECT_EQ(QApplication::activeModalWidget(), &settings.window());
        forms.settings.cancelbtn.click();
    });
    forms.settings.window.show_modal();
    story.emplace_back("main");

    EXPECT_THAT(story, ElementsAre("dialog", "settings", "main"));
}

TEST_F(Modal, ACloseRequestEndsTheWait)
{
    later([this] { desk::ask_to_close(settings.window()); });
    forms.settings.window.show_modal();
    EXPECT_FALSE(forms.settings.window.visible());
}

TEST_F(Modal, AWindowWithoutAWaitComesUpModeless)
{
    forms.groups.window.show();
    show();
    EXPECT_TRUE(groups.window().isVisible());
    EXPECT_EQ(groups.window().windowModality(), Qt::NonModal);
}

TEST_F(Modal, AModelessWindowThatIsShownModalIsInTheWayFromThenOn)
{
    forms.groups.window.show();
    show();
    later([this] {
        story.emplace_back("behind");
        EXPECT_EQ(QApplication::activeModalWidget(), &groups.window());
        EXPECT_TRUE(groups.window().isVisible());
        forms.groups.Command6.click();
    });
    forms.groups.window.show_modal();
    EXPECT_THAT(story, ElementsAre("behind"));

    forms.groups.window.show();
    show();
    EXPECT_EQ(groups.window().windowModality(), Qt::NonModal) << "the next time it is not";
    forms.groups.window.hide();
}

TEST_F(Modal, HiddenInTheMidstOfItsShowingItDoesNotWait)
{
    forms.settings.window.came_up.attach([this] { forms.settings.window.hide(); });
    forms.settings.window.show_modal();
    EXPECT_FALSE(settings.window().isVisible());
}

TEST_F(Modal, TwoWaitsForOneWindowBothEnd)
{
    later([this] {
        later([this] { forms.settings.cancelbtn.click(); });
        forms.settings.window.show_modal();
        story.emplace_back("inner");
    });
    forms.settings.window.show_modal();
    story.emplace_back("outer");
    EXPECT_THAT(story, ElementsAre("inner", "outer"));
}

} // namespace
