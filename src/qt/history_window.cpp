#include "qt/history_window.h"

#include "qt/icons.h"
#include "qt/one_line_delegate.h"
#include "qt/parts.h"
#include "qt/style.h"

#include <QBoxLayout>
#include <QEvent>
#include <QHeaderView>

#include <array>

namespace qt {

namespace {

using controls::Twips;
using Look = Button::Look;

constexpr Twips width_in_twips = 10800;
constexpr Twips height_in_twips = 5370;
constexpr int message_lines = 5;

struct Column {
    char const* header;
    Twips width; ///< 0 for a column that only keeps something
};

constexpr std::array<Column, 10> columns{{
    {"index", 0},
    {"Date", 2822},
    {"To/From", 1940},
    {"User", 1764},
    {"MessageHEAD", 0},
    {"MessageMain", 3704},
    {"6", 0},
    {"7", 0},
    {"8", 0},
    {"9", 0},
}};
constexpr int right_aligned_column = 2;

} // namespace

HistoryWindow::HistoryWindow(Units const& units)
    : FramedWindow(words("historyfrm"), Kind::window, units, nullptr), ListView1(&body()),
      message(&body()), autores(&body()), showmain(Look::plain, units, &body()),
      optionsbtn(Look::plain, units, &body()), searchlogs(Look::plain, units, &body()),
      closebtn(Look::plain, units, &body()), ontop(units, &body()), minmain(units, &body()),
      anchor(units, &body()), wasopen(units, &body())
{
    resize(units.pixels(width_in_twips), units.pixels(height_in_twips));
    name_parts({{&ListView1, "ListView1"},
                {&message, "message"},
                {&autores, "autores"},
                {&showmain, "showmain"},
                {&optionsbtn, "optionsbtn"},
                {&searchlogs, "searchlogs"},
                {&closebtn, "closebtn"},
                {&ontop, "ontop"},
                {&minmain, "minmain"},
                {&anchor, "anchor"},
                {&wasopen, "wasopen"}});
    describe_parts();
    set_columns();
    lay_out();
    order_tabs({&ListView1, &message, &showmain, &optionsbtn, &searchlogs, &closebtn});
    draw_mark();
}

void HistoryWindow::describe_parts()
{
    ListView1.setAccessibleName(words("Messages"));
    message.setAccessibleName(words("Message"));
    autores.setAccessibleName(words("Auto Respond is on"));
    message.setReadOnly(true);
    message.setUndoRedoEnabled(false);
    message.setTabChangesFocus(true);
    message.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void HistoryWindow::set_columns()
{
    ListView1.setColumnCount(static_cast<int>(columns.size()));
    for (int number = 0; number < ListView1.columnCount(); ++number) {
        auto const& column = columns[static_cast<std::size_t>(number)];
        auto const across = number == right_aligned_column ? Qt::AlignRight : Qt::AlignLeft;
        ListView1.headerItem()->setText(number, words(column.header));
        ListView1.headerItem()->setTextAlignment(number, across | Qt::AlignVCenter);
        ListView1.setColumnWidth(number, units().pixels(column.width));
        ListView1.setColumnHidden(number, column.width == 0);
    }
    ListView1.setItemDelegate(new OneLineDelegate(&ListView1));
    ListView1.setRootIsDecorated(false);
    ListView1.ensurePolished(); // Before the first row tells how high all are.
    ListView1.setUniformRowHeights(true);
    ListView1.setAllColumnsShowFocus(true);
    ListView1.header()->setStretchLastSection(true);
}

void HistoryWindow::lay_out()
{
    auto* const column = new QVBoxLayout(&body());
    column->setContentsMargins(size_of(10), size_of(10), size_of(10), size_of(10));
    column->setSpacing(size_of(8));
    column->addWidget(&ListView1, 1);
    column->addWidget(&message);
    column->addLayout(button_row());
    message.setFixedHeight(message.fontMetrics().lineSpacing() * message_lines + size_of(12));
}

QBoxLayout* HistoryWindow::button_row()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(size_of(6));
    row->addWidget(&autores);
    row->addStretch(1);
    for (Button* const button : {&showmain, &optionsbtn, &searchlogs, &closebtn}) {
        button->setMinimumWidth(size_of(88));
        row->addWidget(button);
    }
    return row;
}

void HistoryWindow::changeEvent(QEvent* event)
{
    FramedWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        draw_mark();
    }
}

void HistoryWindow::draw_mark()
{
    autores.setPixmap(glyph(words("away"), Theme(palette()).text).pixmap(size_of(16)));
}

} // namespace qt
