#include "qt/settings_admin_page.h"

#include "qt/parts.h"
#include "qt/style.h"

#include <QGridLayout>

namespace qt {

namespace {

using Look = Button::Look;

} // namespace

SettingsAdminPage::SettingsAdminPage(Units const& units)
    : autoclean(Look::plain, units, this), Command4(Look::plain, units, this),
      btnTransfer(Look::plain, units, this), transfername(words("Transfer"), this),
      transfertext(this), units_(units)
{
    name_parts({{&autoclean, "autoclean"},
                {&Command4, "Command4"},
                {&btnTransfer, "btnTransfer"},
                {&transfername, "transfername"},
                {&transfertext, "transfertext"}});
    transfertext.setTextFormat(Qt::PlainText);
    lay_out();
}

void SettingsAdminPage::lay_out()
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(px(units_, 4), px(units_, 14), px(units_, 4), px(units_, 4));
    grid->setHorizontalSpacing(px(units_, 16));
    grid->setVerticalSpacing(px(units_, 3));
    grid->setColumnStretch(1, 1);
    QFont bold = font();
    bold.setBold(true);
    auto const add = [&](Button& button, QLabel& name, QLabel& text) {
        int const row = grid->rowCount();
        name.setFont(bold);
        text.setWordWrap(true);
        button.setMinimumSize(px(units_, 112), px(units_, 28));
        grid->addWidget(&button, row, 0, 2, 1, Qt::AlignTop);
        grid->addWidget(&name, row, 1);
        grid->addWidget(&text, row + 1, 1, Qt::AlignTop);
        grid->setRowMinimumHeight(row + 2, px(units_, 14));
    };
    add(autoclean, *still_text("Auto clean User List", this),
        *still_text("Auto clean will clear all users from the user cache, seek active users on the "
                    "local network and add them.",
                    this));
    add(Command4, *still_text("Reset All Data Files and Settings", this),
        *still_text("Clear all settings, and restore them to orig. values.", this));
    add(btnTransfer, transfername, transfertext);
    grid->setRowStretch(grid->rowCount(), 1);
}

} // namespace qt
