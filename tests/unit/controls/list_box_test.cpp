#include "controls/list_box.h"
#include "tests/unit/counter.h"
#include "text/failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>

namespace {

using controls::ListBox;
using testing::ElementsAre;
using testing::IsEmpty;
using unit::Counter;

text::CharacterSet const letters = text::CharacterSet::western();

void add_all(ListBox& list, std::initializer_list<std::string_view> rows)
{
    for (auto const row : rows) {
        list.add(row);
    }
}

ListBox recipients()
{
    ListBox list(letters);
    list.multi_selection = true;
    add_all(list, {"Anna", "Bob", "Carl", "Dora"});
    return list;
}

TEST(ListBox, APlainListKeepsTheOrderOfItsRows)
{
    ListBox list;
    add_all(list, {"b", "a", "b"});

    EXPECT_THAT(list.rows(), ElementsAre("b", "a", "b"));
    EXPECT_EQ(list.count(), 3);
}

TEST(ListBox, ASortedListPutsEachRowInItsPlace)
{
    ListBox list(letters);
    add_all(list, {"carl", "Anna", "BOB", "anna", "Bob"});

    EXPECT_THAT(list.rows(), ElementsAre("Anna", "anna", "BOB", "Bob", "carl"));
}

TEST(ListBox, ThereIsNoRowBeyondTheEnds)
{
    ListBox list;
    list.add("only");

    EXPECT_EQ(list.row(0), "only");
    EXPECT_EQ(list.row(1), "");
    EXPECT_EQ(list.row(-1), "");
}

TEST(ListBox, AnInsertedRowGoesWhereItIsTold)
{
    ListBox list(letters);
    add_all(list, {"a", "b"});

    list.insert(0, "z");
    list.insert(3, "0");

    EXPECT_THAT(list.rows(), ElementsAre("z", "a", "b", "0"));
}

TEST(ListBox, RefusesAPlaceThatIsNone)
{
    ListBox list;
    list.add("only");

    EXPECT_THROW(list.insert(2, "x"), text::Failure);
    EXPECT_THROW(list.insert(-1, "x"), text::Failure);
    EXPECT_THROW(list.remove(1), text::Failure);
    EXPECT_THROW(list.remove(-1), text::Failure);
    EXPECT_THAT(list.rows(), ElementsAre("only"));
}

TEST(ListBox, ChoosingARowMarksItAndTellsOnce)
{
    ListBox list;
    add_all(list, {"a", "b"});
    Counter const clicked(list.clicked);
    EXPECT_EQ(list.index(), ListBox::none);
    EXPECT_EQ(list.text(), "");

    list.choose(1);
    list.choose(1);

    EXPECT_EQ(clicked.count(), 1);
    EXPECT_EQ(list.index(), 1);
    EXPECT_EQ(list.text(), "b");
    EXPECT_THAT(list.selected_rows(), ElementsAre("b"));
}

TEST(ListBox, ChoosingNoRowTakesTheMarkAway)
{
    ListBox list;
    list.add("a");
    list.choose(0);
    Counter const clicked(list.clicked);

    list.choose(7);
    list.choose(ListBox::none);

    EXPECT_EQ(list.index(), ListBox::none);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_THAT(list.selected_rows(), IsEmpty());
}

TEST(ListBox, InAListOfSingleSelectionASecondRowReplacesTheFirst)
{
    ListBox list;
    add_all(list, {"a", "b"});

    list.select(0, true);
    list.select(1, true);
    EXPECT_THAT(list.selected_rows(), ElementsAre("b"));

    list.select(1, false);
    EXPECT_THAT(list.selected_rows(), IsEmpty());
}

TEST(ListBox, RowsOfAMultiSelectionAreSelectedOneByOne)
{
    auto list = recipients();
    Counter const clicked(list.clicked);

    list.select(3, true);
    list.select(1, true);
    list.select(1, true);

    EXPECT_EQ(clicked.count(), 2);
    EXPECT_THAT(list.selected_rows(), ElementsAre("Bob", "Dora"));
    EXPECT_EQ(list.text(), "Bob");
    EXPECT_TRUE(list.selected(3));
    EXPECT_FALSE(list.selected(0));
    EXPECT_FALSE(list.selected(4));
}

TEST(ListBox, ARowBeyondTheEndsOfAMultiSelectionIsNotSelected)
{
    auto list = recipients();
    Counter const clicked(list.clicked);

    list.select(-1, true);
    list.select(4, true);

    EXPECT_THAT(list.selected_rows(), IsEmpty());
    EXPECT_EQ(list.index(), ListBox::none);
    EXPECT_EQ(clicked.count(), 0);
}

TEST(ListBox, ADeselectedRowIsMarkedToo)
{
    auto list = recipients();
    list.select(1, true);
    list.select(3, true);

    list.select(1, false);

    EXPECT_THAT(list.selected_rows(), ElementsAre("Dora"));
    EXPECT_EQ(list.text(), "Bob");
}

TEST(ListBox, TheMarkOfAMultiSelectionSelectsNothing)
{
    auto list = recipients();

    list.choose(2);

    EXPECT_EQ(list.text(), "Carl");
    EXPECT_THAT(list.selected_rows(), IsEmpty());
}

TEST(ListBox, AGestureOverManyRowsTellsOnce)
{
    auto list = recipients();
    list.select(0, true);
    Counter const clicked(list.clicked);

    list.choose_many({1, 2, 9, -1}, 2);

    EXPECT_EQ(clicked.count(), 1);
    EXPECT_THAT(list.selected_rows(), ElementsAre("Bob", "Carl"));
    EXPECT_EQ(list.text(), "Carl");
}

TEST(ListBox, AClickOnTheSelectedRowIsAGestureToo)
{
    auto list = recipients();
    list.choose_many({1}, 1);
    Counter const clicked(list.clicked);

    list.choose_many({1}, 1);

    EXPECT_EQ(clicked.count(), 1);
}

TEST(ListBox, MarkAndSelectionMoveWithTheirRows)
{
    auto list = recipients();
    list.select(1, true);

    list.add("Alma");
    EXPECT_EQ(list.index(), 2);
    EXPECT_THAT(list.selected_rows(), ElementsAre("Bob"));

    list.add("Zoe");
    EXPECT_EQ(list.text(), "Bob");

    list.remove(0);
    EXPECT_EQ(list.text(), "Bob");
    EXPECT_THAT(list.selected_rows(), ElementsAre("Bob"));
}

TEST(ListBox, ManyRowsAtOnceStandAsIfTheyHadComeOneByOne)
{
    ListBox one_by_one(letters);
    ListBox at_once(letters);
    for (auto* const list : {&one_by_one, &at_once}) {
        add_all(*list, {"Dora", "bob"});
        list->choose(1);
    }

    add_all(one_by_one, {"carl", "Bob", "anna", "Dora", "BOB", "Zoe"});
    at_once.add_all({"carl", "Bob", "anna", "Dora", "BOB", "Zoe"});

    EXPECT_EQ(at_once.rows(), one_by_one.rows());
    EXPECT_EQ(at_once.index(), one_by_one.index());
    EXPECT_EQ(at_once.text(), "Dora");
}

TEST(ListBox, ManyRowsAtOnceGoToTheEndOfAPlainList)
{
    ListBox list;
    list.add("z");

    list.add_all({"b", "a"});

    EXPECT_THAT(list.rows(), ElementsAre("z", "b", "a"));
}

TEST(ListBox, ARemovedRowTakesItsMarkAndItsSelectionWithIt)
{
    auto list = recipients();
    list.select(1, true);
    Counter const clicked(list.clicked);

    list.remove(1);

    EXPECT_EQ(list.index(), ListBox::none);
    EXPECT_THAT(list.selected_rows(), IsEmpty());
    EXPECT_EQ(clicked.count(), 0);
}

TEST(ListBox, EmptyingTheListLosesTheSelectionWithoutAWord)
{
    auto list = recipients();
    list.select(1, true);
    Counter const clicked(list.clicked);

    list.clear();

    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.index(), ListBox::none);
    EXPECT_EQ(clicked.count(), 0);
    list.add("Bob");
    EXPECT_THAT(list.selected_rows(), IsEmpty());
}

} // namespace
