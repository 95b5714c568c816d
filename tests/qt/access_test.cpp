#include "qt/shell.h"
#include "tests/qt/frames.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <gmock/gmock.h>

#include <set>

namespace {

using desk::words;
using testing::IsEmpty;

/// Every window of the program, for whoever has no mouse or does not see the screen.
struct Access : testing::Test, desk::Desk {
    Access()
    {
        for (char const* name : {"Alice Meyer", "Bob"}) {
            forms.frmMain.allusers.add(name);
            forms.groups.users.add(name);
        }
        forms.groups.List1.add("SALES" + std::string(30, ' ') + "0");
        forms.groups.group[0].visible = true;
        forms.historyfrm.ListView1.add(
            {"20261115151802", "11/15/26", "From", "Bob", "BOB>", "Lunch?", "", "", "", ""});
        forms.frmMain.autorespond.visible = forms.frmMain.away.visible = true;
        forms.frmMain.dissmissall.enabled = true;
        forms.settings.autoreply.visible = true;
        forms.for_each_popup([](forms::Popup& popup) {
            popup.message.set_text("BOB> Lunch?");
            popup.Label3.set_caption("(Sent to ALL)");
            popup.Check1.visible = true;
            popup.Command2.enabled = true;
            fill(popup.qb);
        });
        fill(forms.frmMain.qb);
        forms.settings.localinfo.set_caption("Version: 1.5.3");
    }

    template <typename Buttons>
    static void fill(Buttons& buttons)
    {
        for (auto& button : buttons) {
            button.caption = "Call on 1";
            button.enabled = true;
        }
    }

    QWidget& come_up(controls::Window& form, char const* name)
    {
        form.show();
        shell.show();
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == words(name)) {
                window->activateWindow();
                EXPECT_TRUE(QTest::qWaitForWindowActive(window)) << name;
                desk::settle();
                return *window;
            }
        }
        throw std::runtime_error(name);
    }

    qt::Shell shell{forms, codec, units};
};

std::string told(QWidget const& part)
{
    return part.window()->objectName().toStdString() + ": " + part.metaObject()->className() + " " +
           part.objectName().toStdString();
}

/// What a person can work with by the keyboard: on show, enabled, and not a part of another one.
std::vector<QWidget*> controls_of(QWidget const& window)
{
    std::vector<QWidget*> found;
    for (QWidget* const part : window.findChildren<QWidget*>()) {
        bool const works = part->isVisible() && part->isEnabled() && part->focusProxy() == nullptr;
        if (works && (part->focusPolicy() & Qt::TabFocus) != 0) {
            found.push_back(part);
        }
    }
    return found;
}

void expect_names_and_roles(QWidget& window)
{
    EXPECT_THAT(desk::nameless(window), IsEmpty());
    auto const whole = QAccessible::queryAccessibleInterface(&window);
    EXPECT_EQ(whole->role(),
              window.windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window);
    EXPECT_EQ(whole->text(QAccessible::Name), window.windowTitle());
    for (QWidget* const part : window.findChildren<QWidget*>()) {
        bool const speaks = !part->objectName().isEmpty() && part->isVisible() &&
                            !part->objectName().startsWith(words("qt_"));
        auto* const face = QAccessible::queryAccessibleInterface(part);
        if (!speaks || face == nullptr) {
            continue;
        }
        EXPECT_NE(face->role(), QAccessible::NoRole) << told(*part);
        bool const text = qobject_cast<QLabel const*>(part) != nullptr;
        EXPECT_TRUE(!text || !face->text(QAccessible::Name).isEmpty()) << told(*part);
    }
}

void expect_tab_comes_everywhere(QWidget& window)
{
    auto const all = controls_of(window);
    ASSERT_FALSE(all.empty());
    all.front()->setFocus(Qt::TabFocusReason);
    std::set<QWidget const*> reached;
    for (std::size_t step = 0; step <= 2 * all.size(); ++step) {
        reached.insert(window.focusWidget());
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    for (QWidget* const part : all) {
        EXPECT_TRUE(reached.contains(part)) << told(*part);
    }
}

/// The place of the control with a little around it.
QImage seen(QWidget& part)
{
    QRect const place(part.mapTo(part.window(), QPoint(-3, -3)), part.size() + QSize(6, 6));
    return part.window()->grab(place).toImage();
}

void expect_focus_is_seen(QWidget& window)
{
    for (QWidget* const part : controls_of(window)) {
        part->setFocus(Qt::TabFocusReason);
        desk::settle();
        QImage const with = seen(*part);
        part->clearFocus();
        desk::settle();
        EXPECT_NE(seen(*part), with) << told(*part);
    }
}

void expect_open_to_all(QWidget& window)
{
    expect_names_and_roles(window);
    expect_tab_comes_everywhere(window);
    expect_focus_is_seen(window);
}

TEST_F(Access, ToTheMainWindow)
{
    QWidget& window = come_up(forms.frmMain.window, "frmMain");
    expect_open_to_all(window);
    forms.frmMain.SSTab1.choose(1);
    shell.show();
    expect_open_to_all(window);
}

TEST_F(Access, ToAMessage)
{
    expect_open_to_all(come_up(forms.popup[0].window, "popup0"));
}

TEST_F(Access, ToARecalledMessage)
{
    forms.popuplast.beensent.visible = true;
    expect_open_to_all(come_up(forms.popuplast.window, "popuplast"));
}

TEST_F(Access, ToTheHistory)
{
    forms.historyfrm.autores.visible = true;
    expect_open_to_all(come_up(forms.historyfrm.window, "historyfrm"));
}

TEST_F(Access, ToTheLog)
{
    expect_open_to_all(come_up(forms.log.window, "log"));
}

TEST_F(Access, ToTheGroups)
{
    expect_open_to_all(come_up(forms.groups.window, "groups"));
}

TEST_F(Access, ToTheForwardDialog)
{
    forms.fwdtofrm.fwdto.add("None");
    expect_open_to_all(come_up(forms.fwdtofrm.window, "fwdtofrm"));
}

TEST_F(Access, ToEveryPageOfTheSettings)
{
    QWidget& window = come_up(forms.settings.window, "settings");
    auto const& tabs = desk::in<QTabWidget>(window, "SSTab1");
    ASSERT_EQ(tabs.count(), 5);
    for (int tab = 0; tab < tabs.count(); ++tab) {
        forms.settings.SSTab1.choose(tab);
        shell.show();
        expect_open_to_all(window);
    }
}

} // namespace
