#include "tests/qt/frames.h"

#include <QLabel>
#include <gmock/gmock.h>

namespace {

using desk::words;
using testing::ElementsAre;
using testing::IsEmpty;

std::string group_row(char const* name, char slot)
{
    return name + std::string(30, ' ') + slot;
}

/// Two groups, the second one open, on the screen.
struct GroupsWindow : testing::Test, desk::OwnedDesk<qt::GroupsBinder> {
    GroupsWindow() : OwnedDesk(forms.groups)
    {
        form.List1.add(group_row("FRIENDS", '4'));
        form.List1.add(group_row("SALES", '0'));
        form.List1.choose(1);
        for (auto& members : form.group) {
            members.visible = false;
        }
        form.group[0].visible = true;
        form.group[0].add("ANNA BERG");
        form.group[4].add("BOB");
        form.users.add("CARL DUNN");
        come_up(form.window);
    }

    [[nodiscard]] std::vector<std::string> shown_member_lists()
    {
        std::vector<std::string> shown;
        for (auto const* const list : window.findChildren<QListWidget*>()) {
            if (list->isVisible() && list->objectName().startsWith(words("group"))) {
                shown.push_back(list->objectName().toStdString());
            }
        }
        return shown;
    }

    forms::Groups& form = forms.groups;
    QListWidget& groups = control<QListWidget>("List1");
};

TEST_F(GroupsWindow, EveryControlIsFoundByItsName)
{
    EXPECT_EQ(window.objectName(), words("groups"));
    EXPECT_THAT(desk::missing(window, {"List1", "users", "group(0)", "group(1)", "group(2)",
                                       "group(3)", "group(4)", "group(5)", "group(6)", "group(7)",
                                       "group(8)", "group(9)", "Command1", "Command2", "Command3",
                                       "Command4", "Command5", "Command6", "closebtn"}),
                IsEmpty());
}

TEST_F(GroupsWindow, TheThirtyBlanksAndTheDigitAreOutOfSight)
{
    EXPECT_EQ(groups.item(0)->text(), words("FRIENDS"));
    EXPECT_EQ(groups.item(1)->text(), words("SALES"));
    EXPECT_EQ(form.List1.row(0), group_row("FRIENDS", '4'));
}

TEST_F(GroupsWindow, OnlyTheListOfTheCurrentGroupIsSeen)
{
    EXPECT_THAT(shown_member_lists(), ElementsAre("group(0)"));
    auto const place = control("group(0)").geometry();
    form.group[0].visible = false;
    form.group[4].visible = true;
    show();
    EXPECT_THAT(shown_member_lists(), ElementsAre("group(4)"));
    EXPECT_EQ(control("group(4)").geometry(), place) << "all ten stand at one place";
}

TEST_F(GroupsWindow, WithNoGroupOpenItsPlaceStaysFree)
{
    auto const users = control("users").geometry();
    form.group[0].visible = false;
    show();
    EXPECT_THAT(shown_member_lists(), IsEmpty());
    EXPECT_EQ(control("users").geometry(), users);
}

TEST_F(GroupsWindow, SaysWhoCanBeAdded)
{
    bool said = false;
    for (auto const* const label : window.findChildren<QLabel*>()) {
        said = said || (label->isVisible() && label->text() == words("Available Users"));
    }
    EXPECT_TRUE(said);
}

TEST_F(GroupsWindow, AClickReachesTheForm)
{
    desk::click_row(groups, 0);
    EXPECT_EQ(form.List1.index(), 0);
    desk::click_row(control<QListWidget>("users"), 0);
    EXPECT_EQ(form.users.text(), "CARL DUNN");
    desk::click_row(control<QListWidget>("group(0)"), 0);
    EXPECT_EQ(form.group[0].text(), "ANNA BERG");
}

TEST_F(GroupsWindow, ItsButtonsBearTheirCaptionsAndPressTheirModels)
{
    for (auto const& [name, caption, button] :
         std::initializer_list<std::tuple<char const*, char const*, controls::Button*>>{
             {"Command1", ">", &form.Command1},
             {"Command2", "New Group", &form.Command2},
             {"Command3", "Delete Group", &form.Command3},
             {"Command4", "<", &form.Command4},
             {"Command5", "Change Name", &form.Command5},
             {"Command6", "Cancel", &form.Command6},
             {"closebtn", "Save", &form.closebtn}}) {
        EXPECT_EQ(control<QPushButton>(name).text(), words(caption));
        EXPECT_EQ(desk::presses_by_click(window, name, *button), 1) << name;
    }
}

TEST_F(GroupsWindow, ACloseRequestPressesCancel)
{
    EXPECT_EQ(desk::presses_by_closing(window, form.Command6), 2);
}

TEST_F(GroupsWindow, TabGoesThroughAllControls)
{
    groups.setFocus();
    EXPECT_THAT(desk::tab_round(window),
                ElementsAre("List1", "Command2", "Command5", "Command3", "group(0)", "Command4",
                            "Command1", "users", "closebtn", "Command6"));
    EXPECT_THAT(desk::nameless(window), IsEmpty());
}

/// Who messages are forwarded to, with its owner on the screen.
struct ForwardDialog : testing::Test, desk::OwnedDesk<qt::ForwardBinder> {
    ForwardDialog() : OwnedDesk(forms.fwdtofrm)
    {
        form.fwdto.add("None");
        form.fwdto.add("Bob");
        owner.setGeometry(150, 120, 600, 400);
        owner.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&owner));
        come_up(form.window);
    }

    forms::FwdToFrm& form = forms.fwdtofrm;
};

TEST_F(ForwardDialog, EveryControlIsFoundByItsName)
{
    EXPECT_EQ(window.objectName(), words("fwdtofrm"));
    EXPECT_EQ(window.windowTitle(), words("Forward to"));
    EXPECT_THAT(desk::missing(window, {"fwdto", "savebtn", "cancelbtn"}), IsEmpty());
}

TEST_F(ForwardDialog, StandsInTheMiddleOfItsOwner)
{
    auto const apart = window.geometry().center() - owner.geometry().center();
    EXPECT_LE(apart.manhattanLength(), 8) << "but for the thickness of the frames";
}

TEST_F(ForwardDialog, HandsOnWhoIsChosen)
{
    desk::click_row(control<QListWidget>("fwdto"), 1);
    EXPECT_EQ(form.fwdto.text(), "Bob");
    EXPECT_EQ(desk::presses_by_click(window, "savebtn", form.savebtn), 1);
}

TEST_F(ForwardDialog, ACloseRequestPressesCancel)
{
    EXPECT_EQ(desk::presses_by_closing(window, form.cancelbtn), 2);
}

TEST_F(ForwardDialog, TabGoesThroughAllControls)
{
    control("fwdto").setFocus();
    EXPECT_THAT(desk::tab_round(window), ElementsAre("fwdto", "savebtn", "cancelbtn"));
    EXPECT_THAT(desk::nameless(window), IsEmpty());
}

} // namespace
