#include "qt/settings_away_page.h"

#include "qt/parts.h"
#include "qt/style.h"

#include <QBoxLayout>
#include <QGridLayout>

namespace qt {

SettingsAwayPage::SettingsAwayPage(Units const& units)
    : autoresmaster(units, this), autorespond(this),
      ar3temp(words("Who messages are forwarded to"), this),
      btnAutoForward(Button::Look::plain, units, this), autoreply(units, this), units_(units)
{
    name_parts({{&autoresmaster, "autoresmaster"},
                {&autorespond, "autorespond"},
                {&ar3temp, "ar3temp"},
                {&btnAutoForward, "btnAutoForward"},
                {&autoreply, "autoreply"}});
    for (std::size_t index = 0; index < ar.size(); ++index) {
        ar[index] = new QLineEdit(this);
        ar[index]->setObjectName(QStringLiteral("ar(%1)").arg(index));
        ar[index]->setAccessibleName(QStringLiteral("Auto Respond Message %1").arg(index + 1));
    }
    autorespond.setAccessibleName(words("Auto Respond Message in force"));
    btnAutoForward.setAccessibleDescription(words("Select who messages are forwarded to"));
    lay_out();
}

QList<QWidget*> SettingsAwayPage::tab_order()
{
    return {&autoresmaster, ar[0], ar[1], ar[2], ar[3], &autorespond, &btnAutoForward, &autoreply};
}

void SettingsAwayPage::lay_out()
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(px(units_, 4), px(units_, 10), px(units_, 4), px(units_, 4));
    column->setSpacing(px(units_, 8));
    column->addWidget(&autoresmaster);
    column->addSpacing(px(units_, 6));
    column->addWidget(still_text("Auto Respond Messages", this));
    column->addLayout(responses());
    column->addSpacing(px(units_, 10));
    column->addLayout(forwarding());
    column->addStretch(1);
}

QGridLayout* SettingsAwayPage::responses()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(px(units_, 8));
    grid->setVerticalSpacing(px(units_, 5));
    grid->setColumnStretch(1, 1);
    static constexpr std::array numbers{"1", "2", "3", "4"};
    int line = 0;
    for (QLineEdit* const text : ar) {
        grid->addWidget(still_text(numbers.at(static_cast<std::size_t>(line)), this), line, 0,
                        Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(text, line, 1);
        ++line;
    }
    grid->setRowMinimumHeight(line, px(units_, 4));
    grid->addWidget(still_text("In force now", this), line + 1, 0);
    grid->addWidget(&autorespond, line + 1, 1);
    return grid;
}

QGridLayout* SettingsAwayPage::forwarding()
{
    QFont bold = ar3temp.font();
    bold.setBold(true);
    ar3temp.setFont(bold);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(px(units_, 8));
    grid->setVerticalSpacing(px(units_, 6));
    grid->setColumnStretch(1, 1);
    grid->addWidget(still_text("Auto forward messages to:", this), 0, 0);
    grid->addWidget(&ar3temp, 0, 1);
    grid->addWidget(&btnAutoForward, 0, 2);
    grid->addWidget(&autoreply, 1, 0, 1, 3);
    return grid;
}

} // namespace qt
