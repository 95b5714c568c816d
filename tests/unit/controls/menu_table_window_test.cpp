#include "controls/menu.h"
#include "controls/table.h"
#include "controls/window.h"
#include "tests/unit/counter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using controls::Menu;
using controls::Table;
using controls::Window;
using testing::ElementsAre;
using unit::Counter;

Menu three_entries()
{
    return {"Menu", {{"one"}, {"two", false}, {"three", true, true, true}}};
}

TEST(Menu, AHiddenEntryKeepsItsNumber)
{
    auto const menu = three_entries();

    EXPECT_FALSE(menu[1].visible);
    EXPECT_EQ(menu[2].caption, "three");
    EXPECT_THROW((void)menu[3], std::out_of_range);
}

TEST(Menu, OneEntryIsCheckedAndAllOthersAreNot)
{
    auto menu = three_entries();

    menu.check_only(0);

    EXPECT_TRUE(menu[0].checked);
    EXPECT_FALSE(menu[1].checked);
    EXPECT_FALSE(menu[2].checked);
}

TEST(Menu, APickTellsTheEntrysNumber)
{
    auto menu = three_entries();
    menu.choose(2); // Nobody listens yet.
    std::vector<std::size_t> picked;
    menu.chosen = [&picked](std::size_t index) { picked.push_back(index); };

    menu.choose(1);
    menu.choose(1);

    EXPECT_THAT(picked, ElementsAre(1U, 1U));
}

TEST(Menu, PopsUpWhereItIsShown)
{
    auto menu = three_entries();
    menu.pop_up(); // Nobody shows it yet.
    int popped = 0;
    menu.popped_up = [&popped] { ++popped; };

    menu.pop_up();

    EXPECT_EQ(popped, 1);
}

Table::Row row(std::string first)
{
    Table::Row row;
    row[0] = std::move(first);
    return row;
}

Table three_rows()
{
    Table table;
    table.add(row("a"));
    table.add(row("b"));
    table.add(row("c"));
    return table;
}

TEST(Table, RowsCountFromOne)
{
    auto const table = three_rows();

    EXPECT_EQ(table.count(), 3);
    EXPECT_EQ(table.row(1)[0], "a");
    EXPECT_EQ(table.row(3)[0], "c");
    EXPECT_THROW((void)table.row(0), std::out_of_range);
    EXPECT_THROW((void)table.row(4), std::out_of_range);
}

TEST(Table, ShowingARowRunsNoHandler)
{
    auto table = three_rows();
    Counter const clicked(table.clicked);

    table.show(2);

    EXPECT_EQ(table.selected(), 2);
    EXPECT_EQ(clicked.count(), 0);
}

TEST(Table, APersonsChoiceRunsTheHandlerEachTime)
{
    auto table = three_rows();
    Counter const clicked(table.clicked);

    table.choose(2);
    table.choose(2);

    EXPECT_EQ(table.selected(), 2);
    EXPECT_EQ(clicked.count(), 2);
}

TEST(Table, TheSelectionStaysWithItsRow)
{
    auto table = three_rows();
    table.show(2);

    table.remove(3);
    EXPECT_EQ(table.selected(), 2);

    table.remove(1);
    EXPECT_EQ(table.selected(), 1);
    EXPECT_EQ(table.row(1)[0], "b");

    table.remove(1);
    EXPECT_EQ(table.selected(), 0);
    EXPECT_TRUE(table.empty());
}

TEST(Table, AnEmptiedTableHasNoSelection)
{
    auto table = three_rows();
    table.show(2);

    table.clear();

    EXPECT_TRUE(table.empty());
    EXPECT_EQ(table.selected(), 0);
}

TEST(Window, StartsHiddenAndWithoutAPlace)
{
    Window const window(8205, 5370);

    EXPECT_FALSE(window.visible());
    EXPECT_FALSE(window.placed);
    EXPECT_EQ(window.width, 8205);
    EXPECT_EQ(window.height, 5370);
}

TEST(Window, ShowingOneThatIsOnShowBringsItToTheFrontAgain)
{
    Window window(100, 100);
    Counter const shown(window.shown);

    window.show();
    window.show();

    EXPECT_TRUE(window.visible());
    EXPECT_EQ(window.shows(), 2U);
    EXPECT_EQ(shown.count(), 2);
}

TEST(Window, OnShowDoesNotComeUpOnceMore)
{
    Window window(100, 100);
    Counter const came_up(window.came_up);

    window.show();
    window.show();
    EXPECT_EQ(came_up.count(), 1);

    window.hide();
    window.show();
    EXPECT_EQ(came_up.count(), 2);
}

TEST(Window, HidingOneThatIsHiddenTellsNothing)
{
    Window window(100, 100);
    Counter const hidden(window.hidden);

    window.hide();
    EXPECT_EQ(hidden.count(), 0);

    window.show();
    window.hide();
    window.hide();
    EXPECT_FALSE(window.visible());
    EXPECT_EQ(hidden.count(), 1);
}

TEST(Window, APlaceIsAPlaceFromThenOn)
{
    Window window(100, 100);

    window.place(0, 0);

    EXPECT_TRUE(window.placed);
    window.place(30.5F, 20);
    EXPECT_EQ(window.left, 30.5F);
    EXPECT_EQ(window.top, 20);
}

} // namespace
