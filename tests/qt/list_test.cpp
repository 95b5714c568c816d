#include "tests/qt/desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using desk::MainDesk;
using desk::words;
using testing::ElementsAre;
using testing::IsEmpty;

QStringList rows_of(QListWidget const& list)
{
    QStringList rows;
    for (int row = 0; row < list.count(); ++row) {
        rows.append(list.item(row)->text());
    }
    return rows;
}

struct Users : testing::Test, MainDesk {
    QListWidget& list = control<QListWidget>("allusers");
    controls::ListBox& model = form.allusers;
    int clicks = 0;

    Users()
    {
        model.clicked.attach([this] { ++clicks; });
    }
};

TEST_F(Users, RowsFollowTheForm)
{
    model.add("Aaron");
    model.remove(3);
    show();
    EXPECT_EQ(rows_of(list), QStringList({words("Aaron"), words("Alice Meyer"), words("Bob")}));

    model.clear();
    show();
    EXPECT_EQ(rows_of(list), QStringList());
}

TEST_F(Users, LikeRowsAreAllThere)
{
    model.add("Bob");
    model.add("Bob");
    show();

    EXPECT_EQ(list.count(), 5);
    EXPECT_EQ(list.item(3)->text(), words("Bob"));
}

TEST_F(Users, APlainClickSelectsOne)
{
    desk::click_row(list, 0);
    desk::click_row(list, 2);

    EXPECT_THAT(model.selected_rows(), ElementsAre("Carl Dunn"));
    EXPECT_EQ(model.text(), "Carl Dunn");
    EXPECT_EQ(clicks, 2);
}

TEST_F(Users, CtrlAddsAndTakesAway)
{
    desk::click_row(list, 0);
    desk::click_row(list, 2, Qt::ControlModifier);
    EXPECT_THAT(model.selected_rows(), ElementsAre("Alice Meyer", "Carl Dunn"));

    desk::click_row(list, 0, Qt::ControlModifier);
    EXPECT_THAT(model.selected_rows(), ElementsAre("Carl Dunn"));
    EXPECT_EQ(clicks, 3);
}

TEST_F(Users, ShiftSelectsAStretchInOneGo)
{
    desk::click_row(list, 0);
    desk::click_row(list, 2, Qt::ShiftModifier);

    EXPECT_THAT(model.selected_rows(), ElementsAre("Alice Meyer", "Bob", "Carl Dunn"));
    EXPECT_EQ(clicks, 2);
}

TEST_F(Users, AClickOnTheSelectedRowIsAClickToo)
{
    desk::click_row(list, 1);
    desk::click_row(list, 1);

    EXPECT_THAT(model.selected_rows(), ElementsAre("Bob"));
    EXPECT_EQ(clicks, 2);
}

TEST_F(Users, ASelectionFromCodeIsShownAndTellsNothing)
{
    model.choose_many({0, 1}, 1);
    clicks = 0;
    show();

    EXPECT_TRUE(list.item(0)->isSelected());
    EXPECT_TRUE(list.item(1)->isSelected());
    EXPECT_FALSE(list.item(2)->isSelected());
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(Users, ASelectionMovesWithItsRow)
{
    desk::click_row(list, 1);
    model.add("Aaron");
    show();

    EXPECT_TRUE(list.item(2)->isSelected());
    EXPECT_THAT(model.selected_rows(), ElementsAre("Bob"));
}

TEST_F(Users, NobodyClicksOnARowThatIsGone)
{
    QPoint const second = list.visualItemRect(list.item(1)).center();
    model.clear(); // And the event loop has not waited since.
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);

    EXPECT_THAT(model.selected_rows(), IsEmpty());
}

TEST_F(Users, AnEmptiedListHasNoSelection)
{
    desk::click_row(list, 1);
    model.clear();
    model.add("Bob");
    show();

    EXPECT_FALSE(list.item(0)->isSelected());
    EXPECT_EQ(list.currentRow(), -1);
}

TEST_F(Users, TheKeyboardSelectsToo)
{
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);

    EXPECT_THAT(model.selected_rows(), ElementsAre("Bob"));
}

TEST_F(Users, ADisabledListCannotBeClicked)
{
    model.enabled = false;
    show();
    desk::click_row(list, 1);

    EXPECT_FALSE(list.isEnabled());
    EXPECT_THAT(model.selected_rows(), IsEmpty());
}

TEST_F(Users, FollowTheFontSizeOfTheForm)
{
    model.font_size = 12;
    show();

    EXPECT_EQ(list.font().pointSize(), 12);
}

TEST_F(Users, AnAmpersandIsALetter)
{
    model.clear();
    model.add("Smith & Sons");
    show();

    EXPECT_EQ(list.item(0)->text(), words("Smith & Sons"));
}

TEST_F(Users, MoreRowsThanAnybodyScrollsThroughAreNotPutOnShow)
{
    model.clear();
    for (int number = 0; number < 10050; ++number) {
        model.add("row");
    }
    show();
    EXPECT_EQ(list.count(), 10000);
    EXPECT_EQ(model.count(), 10050);

    model.clear();
    model.add("Bob");
    show();
    EXPECT_EQ(rows_of(list), QStringList(words("Bob")));
}

struct GroupList : testing::Test, MainDesk {
    QListWidget& list = control<QListWidget>("List1");
    std::string const design = "Design" + std::string(30, ' ') + "4";
    std::string const sales = "Sales" + std::string(30, ' ') + "0";

    GroupList()
    {
        form.List1.add(design);
        form.List1.add(sales);
        form.SSTab1.choose(1);
        show();
    }
};

TEST_F(GroupList, TheBlanksAndTheDigitStayOutOfSight)
{
    EXPECT_EQ(rows_of(list), QStringList({words("Design"), words("Sales")}));
}

TEST_F(GroupList, ARowLongerThanAnyWindowShowsItsHead)
{
    form.List1.clear();
    form.List1.add(std::string(5000, 'x') + std::string(30, ' ') + "1");
    show();

    EXPECT_EQ(list.item(0)->text(), QString(1000, u'x'));
}

TEST_F(GroupList, TheFormKeepsTheWholeRow)
{
    desk::click_row(list, 1);

    EXPECT_EQ(form.List1.text(), sales);
}

TEST_F(GroupList, OneRowIsSelectedAtATime)
{
    desk::click_row(list, 0);
    desk::click_row(list, 1, Qt::ControlModifier);

    EXPECT_FALSE(form.List1.selected(0));
    EXPECT_TRUE(form.List1.selected(1));
}

TEST_F(GroupList, AClickOnTheSelectedRowIsAClickToo)
{
    int clicks = 0;
    form.List1.clicked.attach([&clicks] { ++clicks; });
    desk::click_row(list, 0);
    desk::click_row(list, 0);

    EXPECT_EQ(clicks, 2);
}

TEST_F(GroupList, ARowTooShortForATailIsShownWhole)
{
    form.List1.clear();
    form.List1.add("short");
    show();

    EXPECT_EQ(list.item(0)->text(), words("short"));
}

} // namespace
