#include "qt/settings_buttons_page.h"

#include "qt/parts.h"
#include "qt/style.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>

namespace qt {

namespace {

constexpr QColor immediate_green(128, 255, 128);
constexpr std::size_t first_send_row = 1;

} // namespace

SettingsButtonsPage::SettingsButtonsPage(std::size_t first, Units const& units)
    : first_(first), units_(units)
{
    add_rows();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(px(units, 4), px(units, 10), px(units, 4), px(units, 4));
    column->setSpacing(px(units, 10));
    column->addLayout(notes());
    column->addLayout(grid());
    column->addStretch(1);
}

void SettingsButtonsPage::add_rows()
{
    for (std::size_t row = 0; row < rows; ++row) {
        auto const number = first_ + row;
        auto const shown = QString::number(row + 1);
        auto* const label = new QLabel(shown, this);
        label->setObjectName(QStringLiteral("qslabel(%1)").arg(number - 1));
        auto* const caption = new QLineEdit(this);
        caption->setObjectName(QStringLiteral("qsend(%1)").arg(number));
        caption->setAccessibleName(words("Button Text ") + shown);
        auto* const message = new QLineEdit(this);
        message->setObjectName(QStringLiteral("qsendtext(%1)").arg(number));
        message->setAccessibleName(words("Message Text ") + shown);
        auto* const immediate = new TickBox(units_, this);
        immediate->setObjectName(QStringLiteral("qsendi(%1)").arg(number));
        immediate->setAccessibleName(words("Send Immediate ") + shown);
        rows_[row] = {label, caption, message, immediate};
    }
}

QBoxLayout* SettingsButtonsPage::notes()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(px(units_, 4));
    if (first_ == first_send_row) {
        column->addWidget(
            still_text("Function keys F1 though F12 are assigned to Buttons 1 though 12", this));
        auto* const emergency =
            still_text("IF Button Text contains the word \"EMERGENCY\" then button will appear RED "
                       "and message will be sent to all users.",
                       this);
        emergency->setWordWrap(true);
        column->addWidget(emergency);
    }
    column->addLayout(legend());
    return column;
}

QBoxLayout* SettingsButtonsPage::legend()
{
    auto* const swatch = new QFrame(this);
    swatch->setObjectName(words("legend"));
    swatch->setFrameShape(QFrame::Box);
    swatch->setFixedSize(px(units_, 26), px(units_, 14));
    swatch->setAutoFillBackground(true);
    swatch->setPalette(QPalette(immediate_green));
    auto* const row = new QHBoxLayout;
    row->setSpacing(px(units_, 6));
    row->addWidget(swatch);
    row->addWidget(still_text("= Send Immediately (you do not have to click SEND)", this), 1);
    return row;
}

QGridLayout* SettingsButtonsPage::grid()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(px(units_, 6));
    grid->setVerticalSpacing(px(units_, 3));
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 5);
    grid->addWidget(still_text("Button Text", this), 0, 1);
    grid->addWidget(still_text("Message Text", this), 0, 2);
    grid->addWidget(still_text("Send Immediate", this), 0, 3);
    int line = 0;
    for (Row const& row : rows_) {
        ++line;
        grid->addWidget(row.qslabel, line, 0, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(row.qsend, line, 1);
        grid->addWidget(row.qsendtext, line, 2);
        grid->addWidget(row.qsendi, line, 3, Qt::AlignCenter);
    }
    return grid;
}

QList<QWidget*> SettingsButtonsPage::tab_order() const
{
    QList<QWidget*> order;
    for (Row const& row : rows_) {
        order.append({row.qsend, row.qsendtext, row.qsendi});
    }
    return order;
}

} // namespace qt
