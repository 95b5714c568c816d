#include "tests/qt/frames.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QTextEdit>
#include <QTreeWidget>
#include <QWindow>
#include <gmock/gmock.h>

namespace {

using controls::Window;
using desk::words;
using testing::ElementsAre;
using testing::IsEmpty;

controls::Table::Row row(char const* date, char const* kind, char const* user, char const* text)
{
    return {"20261115151802", date, kind, user, "BOB>", text, "[ALL]", "", "", ""};
}

/// The history with three rows, on the screen.
struct HistoryWindow : testing::Test, desk::Desk {
    HistoryWindow()
    {
        form.ListView1.add(row("11/15/26 03:15 pm", "From", "Bob", "Lunch?"));
        form.ListView1.add(row("11/15/26 03:16 pm", "To", "Bob", "At noon\r\nby the door"));
        form.ListView1.add(row("11/15/26 03:17 pm", "From", "Carl Dunn", "Me too"));
        form.ListView1.show(3);
        form.ListView1.clicked.attach([this] { chosen.push_back(form.ListView1.selected()); });
        form.ListView1.double_clicked.attach([this] { ++recalls; });
        form.window.show();
        show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        show();
    }

    void show()
    {
        binder.show();
        desk::settle();
    }

    [[nodiscard]] QPoint place_of(int number) const
    {
        return list.visualItemRect(list.topLevelItem(number - 1)).center();
    }

    void click(int number, Qt::KeyboardModifiers held = {})
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, held, place_of(number));
        show();
    }

    void press(int key)
    {
        list.setFocus();
        QTest::keyClick(&list, static_cast<Qt::Key>(key));
        show();
    }

    [[nodiscard]] int selected() const
    {
        return list.indexOfTopLevelItem(list.selectedItems().value(0)) + 1;
    }

    forms::HistoryFrm& form = forms.historyfrm;
    qt::HistoryBinder binder{form, codec, units};
    QWidget& window = binder.window();
    QTreeWidget& list = desk::in<QTreeWidget>(window, "ListView1");
    std::vector<int> chosen;
    int recalls = 0;
};

TEST_F(HistoryWindow, EveryControlIsFoundByItsName)
{
    EXPECT_EQ(window.objectName(), words("historyfrm"));
    EXPECT_EQ(window.windowTitle(), words("Vexlo History"));
    EXPECT_THAT(
        desk::missing(window, {"ListView1", "message", "showmain", "closebtn", "optionsbtn",
                               "searchlogs", "autores", "ontop", "minmain", "anchor", "wasopen"}),
        IsEmpty());
    EXPECT_NE(window.findChild<QMenu*>(words("mnuoptions")), nullptr);
}

TEST_F(HistoryWindow, HasTenColumnsWithTheirHeaders)
{
    std::vector<std::string> headers;
    for (int column = 0; column < list.columnCount(); ++column) {
        headers.push_back(list.headerItem()->text(column).toStdString());
    }
    EXPECT_THAT(headers, ElementsAre("index", "Date", "To/From", "User", "MessageHEAD",
                                     "MessageMain", "6", "7", "8", "9"));
}

TEST_F(HistoryWindow, ColumnsThatOnlyKeepSomethingAreHidden)
{
    for (int const column : {0, 4, 6, 7, 8, 9}) {
        EXPECT_TRUE(list.isColumnHidden(column)) << column;
    }
    EXPECT_EQ(list.columnWidth(1), units.pixels(2822));
    EXPECT_EQ(list.columnWidth(2), units.pixels(1940));
    EXPECT_EQ(list.columnWidth(3), units.pixels(1764));
    EXPECT_GE(list.columnWidth(5), units.pixels(3704)) << "the last one takes what is left";
    EXPECT_TRUE(list.headerItem()->textAlignment(2) & Qt::AlignRight);
    EXPECT_TRUE(list.topLevelItem(0)->textAlignment(2) & Qt::AlignRight);
}

TEST_F(HistoryWindow, AllColumnsAreSeenWithoutScrolling)
{
    int wide = 0;
    for (int const column : {1, 2, 3, 5}) {
        wide += list.columnWidth(column);
    }
    EXPECT_LE(wide, list.viewport()->width());
}

TEST_F(HistoryWindow, TellsHowTheListIsUsed)
{
    EXPECT_EQ(list.toolTip(), words("Dbl click to Recall"));
}

TEST_F(HistoryWindow, ShowsEveryRowAndMarksTheSelectedOne)
{
    ASSERT_EQ(list.topLevelItemCount(), 3);
    EXPECT_EQ(list.topLevelItem(1)->text(3), words("Bob"));
    EXPECT_EQ(list.topLevelItem(1)->text(5), words("At noon\r\nby the door"));
    EXPECT_EQ(selected(), 3);
    EXPECT_THAT(chosen, IsEmpty()) << "code selects without a word";
}

TEST_F(HistoryWindow, ARowWithLineEndsIsAsHighAsAnyOther)
{
    EXPECT_EQ(list.visualItemRect(list.topLevelItem(0)).height(),
              list.visualItemRect(list.topLevelItem(1)).height());
    EXPECT_EQ(desk::line_of(list, list.topLevelItem(1)->text(5)), words("At noon by the door"));
}

TEST_F(HistoryWindow, AClickShowsTheRow)
{
    click(2);
    EXPECT_THAT(chosen, ElementsAre(2));
    EXPECT_EQ(selected(), 2);
}

TEST_F(HistoryWindow, AClickOnTheSelectedRowCountsToo)
{
    click(3);
    EXPECT_THAT(chosen, ElementsAre(3));
}

TEST_F(HistoryWindow, NoClickLeavesTheListWithoutASelection)
{
    click(3, Qt::ControlModifier);
    EXPECT_EQ(selected(), 3);
    EXPECT_EQ(form.ListView1.selected(), 3);
}

TEST_F(HistoryWindow, AKeySelectsTheNextRow)
{
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_THAT(chosen, ElementsAre(2, 1));
    EXPECT_EQ(selected(), 1);
}

TEST_F(HistoryWindow, ADoubleClickRecalls)
{
    click(2);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place_of(2));
    EXPECT_EQ(recalls, 1);
}

TEST_F(HistoryWindow, EnterRecallsForWhoeverHasNoMouse)
{
    press(Qt::Key_Return);
    EXPECT_EQ(recalls, 1);
}

TEST_F(HistoryWindow, TheOldestRowGoesAndTheNewOneTakesTheSelection)
{
    auto const* const second = list.topLevelItem(1);
    form.ListView1.add(row("11/15/26 03:18 pm", "To", "Bob", "Good"));
    form.ListView1.remove(1);
    form.ListView1.show(3);
    show();

    EXPECT_EQ(list.topLevelItemCount(), 3);
    EXPECT_EQ(list.topLevelItem(0), second) << "rows that stay are not made anew";
    EXPECT_EQ(list.topLevelItem(2)->text(5), words("Good"));
    EXPECT_EQ(selected(), 3);
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(HistoryWindow, AClearedListIsEmpty)
{
    form.ListView1.clear();
    show();
    EXPECT_EQ(list.topLevelItemCount(), 0);
    press(Qt::Key_Return);
    EXPECT_EQ(recalls, 1) << "what that means is not the window's business";
}

TEST_F(HistoryWindow, AChangedRowIsShownAsItIs)
{
    form.ListView1.row(2)[5] = "At one";
    show();
    EXPECT_EQ(list.topLevelItem(1)->text(5), words("At one"));
    EXPECT_EQ(list.topLevelItem(2)->text(5), words("Me too"));
    EXPECT_EQ(selected(), 3);
}

TEST_F(HistoryWindow, TheLastRowOfAHundredIsInSight)
{
    for (int count = 0; count < 97; ++count) {
        form.ListView1.add(row("11/16/26 03:15 pm", "From", "Bob", "More"));
    }
    form.ListView1.show(100);
    show();
    EXPECT_TRUE(list.viewport()->rect().contains(place_of(100)));
}

TEST_F(HistoryWindow, ShowingItTwiceChangesNothing)
{
    auto const before = window.grab().toImage();
    show();
    show();
    EXPECT_EQ(window.grab().toImage(), before);
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(HistoryWindow, ItsButtonsPressTheirModels)
{
    for (auto const& [name, button] :
         std::initializer_list<std::pair<char const*, controls::Button*>>{
             {"showmain", &form.showmain},
             {"optionsbtn", &form.optionsbtn},
             {"searchlogs", &form.searchlogs},
             {"closebtn", &form.closebtn}}) {
        EXPECT_EQ(desk::presses_by_click(window, name, *button), 1) << name;
    }
}

TEST_F(HistoryWindow, ACloseRequestPressesClose)
{
    EXPECT_EQ(desk::presses_by_closing(window, form.closebtn), 2);
    EXPECT_TRUE(window.isVisible()) << "that is for the logic to decide";
}

TEST_F(HistoryWindow, TheOptionsMenuShowsItsMarksAndHandsOnWhatIsChosen)
{
    std::vector<std::size_t> entries;
    form.mnuoptions.chosen = [&entries](std::size_t entry) { entries.push_back(entry); };
    form.mnuoptions[2].checked = true;
    show();

    auto const actions = desk::in<QMenu>(window, "mnuoptions").actions();
    EXPECT_THAT(desk::captions(desk::in<QMenu>(window, "mnuoptions")),
                ElementsAre("Keep on Top", "Minimize with main Window", "Anchor to Main Window",
                            "-", "Clear", "Save now"));
    EXPECT_TRUE(actions[2]->isChecked());
    actions[4]->trigger();
    EXPECT_THAT(entries, ElementsAre(4u));
}

TEST_F(HistoryWindow, AnAmpersandInTheMenuIsALetter)
{
    form.mnuoptions[0].caption = "Keep R&D on Top";
    show();

    auto const actions = desk::in<QMenu>(window, "mnuoptions").actions();
    EXPECT_EQ(actions[0]->text(), words("Keep R&&D on Top"));
}

TEST_F(HistoryWindow, TheMarkIsSeenWhileAutoRespondIsOn)
{
    auto& mark = desk::in<QLabel>(window, "autores");
    EXPECT_FALSE(mark.isVisible());
    form.autores.visible = true;
    show();
    EXPECT_TRUE(mark.isVisible());
    EXPECT_EQ(mark.toolTip(), words("Auto Respond is on"));
    EXPECT_EQ(mark.accessibleName(), words("Auto Respond is on"));
    EXPECT_FALSE(mark.pixmap().isNull());
}

TEST_F(HistoryWindow, OptionsWithoutAFaceCanBeAskedForAllTheSame)
{
    form.minmain.set(1);
    show();
    EXPECT_TRUE(desk::in<QCheckBox>(window, "minmain").isChecked());
    EXPECT_FALSE(desk::in(window, "minmain").isVisible());
}

TEST_F(HistoryWindow, TheMessageIsInItsColoursOnWhite)
{
    form.message.set_text("BOB> Lunch?");
    form.message.paint({0, 11, {255, 0, 0}});
    show();
    auto& message = desk::in<QTextEdit>(window, "message");
    EXPECT_EQ(message.toPlainText(), words("BOB> Lunch?"));
    EXPECT_EQ(message.grab().toImage().pixelColor(message.rect().bottomRight() - QPoint(6, 6)),
              QColor(Qt::white));
}

TEST_F(HistoryWindow, OnTopItKeepsItsPlace)
{
    form.window.place(units.twips(120), units.twips(90));
    show();
    auto const place = window.pos();
    auto const* const surface = window.windowHandle();
    form.window.stacking = Window::Stacking::on_top;
    form.window.repaint.run();

    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(window.windowHandle(), surface) << "not a new window";
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.pos(), place);

    form.window.stacking = Window::Stacking::at_the_bottom;
    form.window.repaint.run();
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.pos(), place);
}

TEST_F(HistoryWindow, TellsTheFormHowLargeItIs)
{
    EXPECT_FLOAT_EQ(form.window.width, units.twips(window.frameGeometry().width()));
    window.resize(window.width() + 40, window.height() + 30);
    desk::settle();
    EXPECT_FLOAT_EQ(form.window.width, units.twips(window.frameGeometry().width()));
    EXPECT_FLOAT_EQ(form.window.height, units.twips(window.frameGeometry().height()));
}

TEST_F(HistoryWindow, ComingBackFromABoxIsNoActivation)
{
    int activations = 0;
    form.window.activated.attach([&activations] { ++activations; });
    desk::open_and_close_a_box(window);
    EXPECT_EQ(activations, 0);

    desk::PopupDesk other;
    other.activate();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(activations, 1);
}

TEST_F(HistoryWindow, TheListTakesTheFocusWhenAskedTo)
{
    desk::in(window, "closebtn").setFocus();
    form.ListView1.focus.set();
    show();
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(HistoryWindow, TabGoesThroughAllControls)
{
    list.setFocus();
    EXPECT_THAT(desk::tab_round(window), ElementsAre("ListView1", "message", "showmain",
                                                     "optionsbtn", "searchlogs", "closebtn"));
    EXPECT_THAT(desk::nameless(window), IsEmpty());
}

} // namespace
