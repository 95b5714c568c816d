#include "qt/main_window.h"

#include "qt/icons.h"
#include "qt/style.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QTabBar>
#include <QWindow>

#include <utility>

namespace qt {

namespace {

constexpr controls::Twips width_in_twips = 8205;
constexpr controls::Twips height_in_twips = 5370;
constexpr int title_height = 34; ///< pixels at 96 dots per inch, as all numbers below
constexpr int status_height = 24;
constexpr int recipients_width = 166;
constexpr int columns = 3;
constexpr qreal text_points = 9;
constexpr qreal small_points = 8;

using Look = Button::Look;

QString words(char const* text)
{
    return QString::fromLatin1(text);
}

} // namespace

MainWindow::MainWindow(Units const& units)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint),
      title(words("Title"), &body_), Label3(words("Software on the web"), &body_),
      Label4(words("Our web site"), &body_), helpbtn(Look::flat, units, &body_),
      spotmenu(Look::flat, units, &body_), spotmin(Look::flat, units, &body_),
      spotx(Look::closing, units, &body_), SSTab1(&body_), Checkallusers(units, &body_),
      configgroups(Look::plain, units, &body_), recall(Look::flat, units, &body_),
      dissmissall(Look::flat, units, &body_), history(Look::flat, units, &body_),
      autorespond(Look::flat, units, &body_), away(units, &body_),
      chatbtn(Look::flat, units, &body_), options(Look::flat, units, &body_), messagetext(&body_),
      Frame2(&body_), Label5(words("Notice"), &Frame2), entlabel1(words("Key that sends"), &body_),
      entlabel2(words("Key for a new line"), &body_), Command3(Look::flat, units, &body_),
      sendbtn(Look::primary, units, &body_), statustext(words("Status"), &body_),
      cuetotal(words("Messages that wait"), &body_), traffic(&body_), units_(units),
      waiting_(words("Messages that wait"), &body_)
{
    setObjectName(words("frmMain"));
    setWindowIcon(window_icon(words("vexloim")));
    setFixedSize(units.pixels(width_in_twips), units.pixels(height_in_twips));
    body_.setGeometry(rect());
    QFont font = this->font();
    font.setPointSizeF(text_points);
    body_.setFont(font);
    add_quick_buttons();
    name_parts();
    describe_parts();
    lay_out();
    order_tabs();
    restyle();
    messagetext.setFocus();
}

void MainWindow::add_quick_buttons()
{
    for (std::size_t number = 1; number < qb.size(); ++number) {
        qb[number] = new Button(Look::plain, units_, &body_);
        qb[number]->setObjectName(QStringLiteral("qb(%1)").arg(number));
        qb[number]->set_spare_name(QStringLiteral("Quick button %1").arg(number));
        qb[number]->set_key(QStringLiteral("F%1").arg(number));
    }
}

void MainWindow::name_parts()
{
    for (auto const& [part, name] : std::initializer_list<std::pair<QWidget*, char const*>>{
             {&title, "title"},
             {&Label3, "Label3"},
             {&Label4, "Label4"},
             {&helpbtn, "helpbtn"},
             {&spotmenu, "spotmenu"},
             {&spotmin, "spotmin"},
             {&spotx, "spotx"},
             {&SSTab1, "SSTab1"},
             {&allusers, "allusers"},
             {&Checkallusers, "Checkallusers"},
             {&List1, "List1"},
             {&configgroups, "configgroups"},
             {&recall, "recall"},
             {&dissmissall, "dissmissall"},
             {&history, "history"},
             {&autorespond, "autorespond"},
             {&away, "away"},
             {&chatbtn, "chatbtn"},
             {&options, "options"},
             {&messagetext, "messagetext"},
             {&Frame2, "Frame2"},
             {&Label5, "Label5"},
             {&entlabel1, "entlabel1"},
             {&entlabel2, "entlabel2"},
             {&Command3, "Command3"},
             {&sendbtn, "sendbtn"},
             {&statustext, "statustext"},
             {&cuetotal, "cuetotal"},
             {&traffic, "traffic"},
             {&waiting_, "waiting"},
         }) {
        part->setObjectName(words(name));
    }
}

void MainWindow::describe_parts()
{
    SSTab1.setAccessibleName(words("Recipients"));
    SSTab1.tabBar()->setAccessibleName(words("Recipients"));
    allusers.setAccessibleName(words("Users"));
    List1.setAccessibleName(words("Groups"));
    messagetext.setAccessibleName(words("Message"));
    messagetext.setPlaceholderText(words("Choose who to write to, and type the message here"));
    Frame2.setAccessibleName(words("Notice"));
    traffic.setAccessibleName(words("Traffic"));
    waiting_.setText(words("Waiting"));
    Label3.be_link();
    Label4.be_link();
    for (auto const& [button, name] : std::initializer_list<std::pair<Button*, char const*>>{
             {&spotmenu, "menu"},
             {&spotmin, "minimize"},
             {&spotx, "close"},
             {&recall, "recall"},
             {&dissmissall, "close-all"},
             {&history, "history"},
             {&autorespond, "away"},
             {&options, "options"},
             {&Command3, "clear"},
             {&sendbtn, "send"},
         }) {
        button->set_glyph(words(name));
    }
}

void MainWindow::lay_out()
{
    auto* const middle = new QHBoxLayout;
    middle->setContentsMargins(px(units_, 10), px(units_, 8), px(units_, 10), px(units_, 8));
    middle->setSpacing(px(units_, 10));
    middle->addLayout(recipients());
    middle->addLayout(compose(), 1);

    auto* const whole = new QVBoxLayout(&body_);
    whole->setContentsMargins(1, 1, 1, 1);
    whole->setSpacing(0);
    whole->addLayout(title_bar());
    whole->addLayout(middle, 1);
    whole->addLayout(status_bar());
}

QBoxLayout* MainWindow::title_bar()
{
    auto* const icon = new QLabel(&body_);
    icon->setPixmap(windowIcon().pixmap(px(units_, 20)));
    QFont bold = title.font();
    bold.setBold(true);
    title.setFont(bold);
    auto* const bar = new QHBoxLayout;
    bar->setContentsMargins(px(units_, 10), px(units_, 3), px(units_, 3), px(units_, 3));
    bar->setSpacing(px(units_, 2));
    bar->addWidget(icon);
    bar->addSpacing(px(units_, 6));
    bar->addWidget(&title, 1);
    bar->addWidget(&Label4);
    bar->addSpacing(px(units_, 8));
    bar->addWidget(&Label3);
    bar->addSpacing(px(units_, 6));
    bar->addWidget(&helpbtn);
    for (Button* const spot : {&spotmenu, &spotmin, &spotx}) {
        spot->setFixedSize(px(units_, 32), px(units_, title_height - 6));
        bar->addWidget(spot);
    }
    return bar;
}

QBoxLayout* MainWindow::recipients()
{
    auto const add_page = [this](QWidget& list, QWidget& below, char const* name) {
        auto* const page = new QWidget;
        auto* const column = new QVBoxLayout(page);
        column->setContentsMargins(0, px(units_, 6), 0, 0);
        column->setSpacing(px(units_, 6));
        column->addWidget(&list, 1);
        column->addWidget(&below);
        SSTab1.addTab(page, words(name));
    };
    add_page(allusers, Checkallusers, " Users   ");
    add_page(List1, configgroups, " Groups  ");
    SSTab1.tabBar()->setUsesScrollButtons(false);
    SSTab1.setFixedWidth(px(units_, recipients_width));
    for (QListWidget* const list : {&allusers, &List1}) {
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list->setTextElideMode(Qt::ElideRight);
        list->setUniformItemSizes(true);
    }
    auto* const column = new QVBoxLayout;
    column->addWidget(&SSTab1);
    return column;
}

QBoxLayout* MainWindow::compose()
{
    auto* const notice = new QHBoxLayout(&Frame2);
    notice->setContentsMargins(px(units_, 8), px(units_, 2), px(units_, 6), px(units_, 2));
    notice->addWidget(&Label5);

    auto* const column = new QVBoxLayout;
    column->setSpacing(px(units_, 5));
    column->addLayout(tools());
    column->addWidget(&messagetext, 1);
    column->addWidget(&Frame2);
    column->addLayout(send_row());
    column->addSpacing(px(units_, 2));
    column->addLayout(quick_grid());
    return column;
}

QBoxLayout* MainWindow::tools()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(px(units_, 2));
    for (QWidget* const tool :
         std::initializer_list<QWidget*>{&recall, &dissmissall, &history, &autorespond, &away}) {
        row->addWidget(tool);
    }
    row->addStretch(1);
    row->addWidget(&chatbtn);
    row->addWidget(&options);
    return row;
}

QBoxLayout* MainWindow::send_row()
{
    QFont small = entlabel1.font();
    small.setPointSizeF(small_points);
    auto* const tips = new QVBoxLayout;
    tips->setSpacing(0);
    tips->addStretch(1);
    for (LineLabel* const tip : {&entlabel1, &entlabel2}) {
        tip->setFont(small);
        tips->addWidget(tip);
    }
    tips->addStretch(1);

    QFont bold = sendbtn.font();
    bold.setBold(true);
    sendbtn.setFont(bold);
    sendbtn.setFixedSize(px(units_, 136), px(units_, 30));
    Command3.setFixedSize(px(units_, 32), px(units_, 30));
    auto* const row = new QHBoxLayout;
    row->setSpacing(px(units_, 6));
    row->addLayout(tips, 1);
    row->addWidget(&Command3);
    row->addWidget(&sendbtn);
    return row;
}

QLayout* MainWindow::quick_grid()
{
    QFont small = font();
    small.setPointSizeF(small_points);
    auto* const grid = new QGridLayout;
    grid->setSpacing(px(units_, 4));
    for (int place = 0; place < static_cast<int>(qb.size()) - 1; ++place) {
        Button& button = *qb[static_cast<std::size_t>(place) + 1];
        button.setFont(small);
        button.setFixedHeight(px(units_, 25));
        button.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        grid->addWidget(&button, place / columns, place % columns);
    }
    return grid;
}

QBoxLayout* MainWindow::status_bar()
{
    QFont small = font();
    small.setPointSizeF(small_points);
    for (LineLabel* const label : {&statustext, &waiting_, &cuetotal}) {
        label->setFont(small);
    }
    statustext.setFixedHeight(px(units_, status_height));
    cuetotal.setMinimumWidth(px(units_, 16));
    traffic.setTextVisible(false);
    traffic.setFixedSize(px(units_, 70), px(units_, 9));
    auto* const bar = new QHBoxLayout;
    bar->setContentsMargins(px(units_, 11), 0, px(units_, 11), 0);
    bar->setSpacing(px(units_, 6));
    bar->addWidget(&statustext, 1);
    bar->addWidget(&waiting_);
    bar->addWidget(&cuetotal);
    bar->addWidget(&traffic);
    return bar;
}

void MainWindow::order_tabs()
{
    QList<QWidget*> order{SSTab1.tabBar(), &allusers,    &Checkallusers, &List1,
                          &configgroups,   &messagetext, &Command3,      &sendbtn};
    for (std::size_t number = 1; number < qb.size(); ++number) {
        order.append(qb[number]);
    }
    order.append({&recall, &dissmissall, &history, &autorespond, &away, &chatbtn, &options, &Label4,
                  &Label3, &helpbtn, &spotmenu, &spotmin, &spotx});
    for (qsizetype next = 1; next < order.size(); ++next) {
        setTabOrder(order[next - 1], order[next]);
    }
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        restyle();
    }
    QWidget::changeEvent(event);
}

void MainWindow::restyle()
{
    // The sheet belongs to the body: the boxes that the window owns look like the desktop's.
    if (auto const sheet = style_sheet(Theme(palette()), units_); body_.styleSheet() != sheet) {
        body_.setStyleSheet(sheet);
    }
}

void MainWindow::paintEvent(QPaintEvent* /*event*/)
{
    Theme const theme(palette());
    QPainter painter(this);
    int const title_end = px(units_, title_height);
    int const status_start = height() - px(units_, status_height) - 1;
    painter.fillRect(rect(), theme.ground);
    painter.fillRect(0, 0, width(), title_end, theme.bar);
    painter.fillRect(0, status_start, width(), height() - status_start, theme.bar);
    painter.setPen(theme.line);
    painter.drawLine(0, title_end, width(), title_end);
    painter.drawLine(0, status_start, width(), status_start);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void MainWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !windowHandle()->startSystemMove()) {
        grip_ = event->globalPosition().toPoint() - pos();
    }
}

void MainWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (grip_) {
        move(event->globalPosition().toPoint() - *grip_);
    }
}

void MainWindow::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    grip_.reset();
}

} // namespace qt
