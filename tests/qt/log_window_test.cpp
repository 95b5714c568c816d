#include "tests/qt/frames.h"

#include <QTextEdit>
#include <gmock/gmock.h>

namespace {

using desk::words;
using testing::ElementsAre;
using testing::IsEmpty;

/// The log with three rows, on the screen.
struct LogWindow : testing::Test, desk::OwnedDesk<qt::LogBinder> {
    LogWindow() : OwnedDesk(forms.log)
    {
        form.lstMessages.add("11-15-26:03:15p:Vexlo IM.\t\r\n---");
        form.lstMessages.add("11-15-26:03:16p:Msg from Bob\t\r\nBOB> Lunch?\r\n---");
        form.lstMessages.add("11-15-26:03:17p:Network Connection Restored");
        come_up(form.window);
    }

    forms::Log& form = forms.log;
    QListWidget& rows = control<QListWidget>("lstMessages");
};

TEST_F(LogWindow, EveryControlIsFoundByItsName)
{
    EXPECT_EQ(window.objectName(), words("log"));
    EXPECT_THAT(desk::missing(window, {"lstMessages", "Text1", "Command1", "Command2", "logsave",
                                       "viewlogs", "btnSearchOldLogs"}),
                IsEmpty());
}

TEST_F(LogWindow, BelongsToTheMainWindowAndIsNotInItsWay)
{
    EXPECT_EQ(window.parentWidget(), &owner);
    EXPECT_TRUE(window.isWindow());
    EXPECT_EQ(window.windowModality(), Qt::NonModal);
    EXPECT_EQ(window.windowTitle(), words("Vexlo IM Log"));
}

TEST_F(LogWindow, ComesUpWithTheKeyboardInItsRows)
{
    EXPECT_TRUE(rows.hasFocus());
}

TEST_F(LogWindow, ARowIsOneLineAndKeepsItsWholeText)
{
    EXPECT_EQ(rows.item(1)->text(), words("11-15-26:03:16p:Msg from Bob\t\r\nBOB> Lunch?\r\n---"));
    EXPECT_EQ(desk::line_of(rows, rows.item(1)->text()),
              words("11-15-26:03:16p:Msg from Bob\tBOB> Lunch? ---"));
    EXPECT_EQ(rows.visualItemRect(rows.item(1)).height(),
              rows.visualItemRect(rows.item(2)).height());
    EXPECT_LT(rows.visualItemRect(rows.item(1)).height(), 2 * rows.fontMetrics().height());
}

TEST_F(LogWindow, WhatIsBehindTheTabLinesUp)
{
    auto const left_end = [this](int row) {
        QRect const place = rows.visualItemRect(rows.item(row));
        QImage const seen = rows.viewport()->grab(place).toImage();
        int const beyond_names = seen.width() / 2;
        for (int x = beyond_names; x < seen.width(); ++x) {
            for (int y = 0; y < seen.height(); ++y) {
                if (seen.pixelColor(x, y).lightness() < 128) {
                    return x;
                }
            }
        }
        return 0;
    };
    form.lstMessages.clear();
    form.lstMessages.add("11-15-26:03:16p:Msg from Bob\t\r\nLunch?");
    form.lstMessages.add("11-15-26:03:16p:Msg from Ib\t\r\nLunch?");
    window.resize(560, 300);
    show();
    EXPECT_GT(left_end(0), 0);
    EXPECT_EQ(left_end(0), left_end(1));
}

TEST_F(LogWindow, AClickSelectsTheRow)
{
    std::vector<int> chosen;
    form.lstMessages.clicked.attach([&] { chosen.push_back(form.lstMessages.index()); });
    desk::click_row(rows, 1);
    EXPECT_THAT(chosen, ElementsAre(1));
}

TEST_F(LogWindow, ShowsTheSelectedRowInFull)
{
    form.Text1.set_text("11-15-26:03:16p\r\nMsg from Bob\r\n<b>Lunch?</b>");
    show();
    EXPECT_EQ(control<QTextEdit>("Text1").toPlainText(),
              words("11-15-26:03:16p\nMsg from Bob\n<b>Lunch?</b>"));
    EXPECT_TRUE(control<QTextEdit>("Text1").isReadOnly());
}

TEST_F(LogWindow, ItsButtonsPressTheirModels)
{
    for (auto const& [name, button] :
         std::initializer_list<std::pair<char const*, controls::Button*>>{
             {"Command1", &form.Command1},
             {"Command2", &form.Command2},
             {"logsave", &form.logsave},
             {"viewlogs", &form.viewlogs},
             {"btnSearchOldLogs", &form.btnSearchOldLogs}}) {
        EXPECT_EQ(desk::presses_by_click(window, name, *button), 1) << name;
    }
}

TEST_F(LogWindow, ACloseRequestPressesClose)
{
    form.Command2.clicked.attach([this] { form.window.hide(); });
    desk::ask_to_close(window);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(form.window.visible());
}

TEST_F(LogWindow, ComingBackFromABoxDoesNotMoveTheSelection)
{
    form.window.activated.attach([this] { form.lstMessages.choose(form.lstMessages.count() - 1); });
    form.lstMessages.choose(0);
    desk::open_and_close_a_box(window);
    EXPECT_EQ(form.lstMessages.index(), 0);
}

TEST_F(LogWindow, TabGoesThroughAllControls)
{
    rows.setFocus();
    EXPECT_THAT(desk::tab_round(window),
                ElementsAre("lstMessages", "Text1", "viewlogs", "btnSearchOldLogs", "logsave",
                            "Command1", "Command2"));
    EXPECT_THAT(desk::nameless(window), IsEmpty());
}

} // namespace
