#include "qt/log_window.h"

#include "qt/one_line_delegate.h"
#include "qt/parts.h"

#include <QBoxLayout>
#include <QSplitter>

namespace qt {

namespace {

using Look = Button::Look;

constexpr int width_in_pixels = 680;
constexpr int height_in_pixels = 420;
constexpr int tab_stop = 75;         ///< in dialog units
constexpr int units_of_a_letter = 4; ///< dialog units across a letter of average width

} // namespace

LogWindow::LogWindow(Units const& units, QWidget* owner)
    : FramedWindow(words("log"), Kind::window, units, owner), lstMessages(&body()), Text1(&body()),
      viewlogs(Look::plain, units, &body()), btnSearchOldLogs(Look::plain, units, &body()),
      logsave(Look::plain, units, &body()), Command1(Look::plain, units, &body()),
      Command2(Look::plain, units, &body())
{
    resize(size_of(width_in_pixels), size_of(height_in_pixels));
    name_parts({{&lstMessages, "lstMessages"},
                {&Text1, "Text1"},
                {&viewlogs, "viewlogs"},
                {&btnSearchOldLogs, "btnSearchOldLogs"},
                {&logsave, "logsave"},
                {&Command1, "Command1"},
                {&Command2, "Command2"}});
    describe_parts();
    lay_out();
    order_tabs(
        {&lstMessages, &Text1, &viewlogs, &btnSearchOldLogs, &logsave, &Command1, &Command2});
    lstMessages.setFocus();
}

void LogWindow::describe_parts()
{
    lstMessages.setAccessibleName(words("Log"));
    Text1.setAccessibleName(words("Selected row"));
    Text1.setReadOnly(true);
    Text1.setUndoRedoEnabled(false);
    Text1.setTabChangesFocus(true);
    Text1.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto const letter = lstMessages.fontMetrics().averageCharWidth();
    lstMessages.setItemDelegate(
        new TabbedLineDelegate(tab_stop * letter / units_of_a_letter, &lstMessages));
    lstMessages.setUniformItemSizes(true);
}

void LogWindow::lay_out()
{
    auto* const views = new QSplitter(Qt::Vertical);
    views->setChildrenCollapsible(false);
    views->setHandleWidth(size_of(8));
    views->addWidget(&lstMessages);
    views->addWidget(&Text1);
    views->setStretchFactor(0, 2);
    views->setStretchFactor(1, 1);

    auto* const row = new QHBoxLayout;
    row->setSpacing(size_of(6));
    row->addWidget(&viewlogs);
    row->addWidget(&btnSearchOldLogs);
    row->addStretch(1);
    row->addWidget(&logsave);
    row->addWidget(&Command1);
    row->addWidget(&Command2);
    Command2.setMinimumWidth(size_of(80));

    auto* const column = new QVBoxLayout(&body());
    column->setContentsMargins(size_of(10), size_of(10), size_of(10), size_of(10));
    column->setSpacing(size_of(8));
    column->addWidget(views, 1);
    column->addLayout(row);
}

} // namespace qt
