#include "qt/groups_window.h"

#include "qt/parts.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>

namespace qt {

namespace {

using Look = Button::Look;

constexpr int width_in_pixels = 620;
constexpr int height_in_pixels = 380;

} // namespace

GroupsWindow::GroupsWindow(Units const& units, QWidget* owner)
    : FramedWindow(words("groups"), Kind::dialog, units, owner), List1(&body()), users(&body()),
      Command1(Look::plain, units, &body()), Command2(Look::plain, units, &body()),
      Command3(Look::plain, units, &body()), Command4(Look::plain, units, &body()),
      Command5(Look::plain, units, &body()), Command6(Look::plain, units, &body()),
      closebtn(Look::primary, units, &body())
{
    resize(size_of(width_in_pixels), size_of(height_in_pixels));
    name_parts({{&List1, "List1"},
                {&users, "users"},
                {&Command1, "Command1"},
                {&Command2, "Command2"},
                {&Command3, "Command3"},
                {&Command4, "Command4"},
                {&Command5, "Command5"},
                {&Command6, "Command6"},
                {&closebtn, "closebtn"}});
    List1.setAccessibleName(words("Groups"));
    users.setAccessibleName(words("Available Users"));
    Command4.setAccessibleDescription(words("Add the selected user to the group"));
    Command1.setAccessibleDescription(words("Take the selected member out of the group"));
    add_member_lists();
    lay_out();
    cut_long_rows();
    order();
}

void GroupsWindow::add_member_lists()
{
    for (std::size_t slot = 0; slot < group.size(); ++slot) {
        group[slot] = new QListWidget;
        group[slot]->setObjectName(QStringLiteral("group(%1)").arg(slot));
        group[slot]->setAccessibleName(words("Members of the group"));
    }
}

void GroupsWindow::cut_long_rows()
{
    for (QListWidget* const list : findChildren<QListWidget*>()) {
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list->setTextElideMode(Qt::ElideRight);
    }
}

void GroupsWindow::lay_out()
{
    auto* const place = new QWidget;
    auto* const members = new QGridLayout(place);
    members->setContentsMargins(0, 0, 0, 0);
    for (QListWidget* const list : group) {
        members->addWidget(list, 0, 0);
    }
    auto* const lists = new QHBoxLayout;
    lists->setSpacing(size_of(10));
    lists->addLayout(group_column(), 1);
    lists->addLayout(titled("Members", *place), 1);
    lists->addLayout(arrows());
    lists->addLayout(titled("Available Users", users), 1);

    auto* const column = new QVBoxLayout(&body());
    column->setContentsMargins(size_of(12), size_of(10), size_of(12), size_of(12));
    column->setSpacing(size_of(12));
    column->addLayout(lists, 1);
    column->addLayout(bottom_row());
}

QBoxLayout* GroupsWindow::titled(char const* title, QWidget& list)
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(size_of(4));
    column->addWidget(still_text(title, &body()));
    column->addWidget(&list, 1);
    return column;
}

QBoxLayout* GroupsWindow::group_column()
{
    auto* const column = titled("Groups", List1);
    column->addSpacing(size_of(4));
    for (Button* const button : {&Command2, &Command5, &Command3}) {
        column->addWidget(button);
    }
    return column;
}

QBoxLayout* GroupsWindow::arrows()
{
    auto* const column = new QVBoxLayout;
    column->addStretch(1);
    for (Button* const button : {&Command4, &Command1}) {
        button->setFixedSize(size_of(40), size_of(30));
        column->addWidget(button);
    }
    column->addStretch(1);
    return column;
}

QBoxLayout* GroupsWindow::bottom_row()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(size_of(6));
    row->addStretch(1);
    for (Button* const button : {&closebtn, &Command6}) {
        button->setMinimumSize(size_of(88), size_of(28));
        row->addWidget(button);
    }
    return row;
}

void GroupsWindow::order()
{
    QList<QWidget*> order{&List1, &Command2, &Command5, &Command3};
    for (QListWidget* const list : group) {
        order.append(list);
    }
    order.append({&Command4, &Command1, &users, &closebtn, &Command6});
    order_tabs(order);
}

} // namespace qt
