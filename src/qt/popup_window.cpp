#include "qt/popup_window.h"

#include "qt/icons.h"

#include <QList>

#include <initializer_list>
#include <utility>

namespace qt {

namespace {

using controls::Twips;
using Look = Button::Look;

constexpr Twips client_width = 5235;
constexpr Twips client_height = 6855;
constexpr Twips button_width = 1665;
constexpr Twips button_height = 435;
constexpr std::array<Twips, 3> button_lefts{75, 1785, 3495};
constexpr std::array<Twips, 4> button_tops{4350, 4830, 5310, 5790};
constexpr Twips note_overlap = 135;
constexpr int text_points = 8;

struct Place {
    Twips left;
    Twips top;
    Twips width;
    Twips height;
};

QString words(char const* text)
{
    return QString::fromLatin1(text);
}

/// The ground never changes, so nothing on it may follow a dark desktop.
QPalette light_palette()
{
    QPalette colours(QColor(0xeb, 0xe9, 0xed));
    QColor const grey(0x6a, 0x6a, 0x6a);
    for (auto const group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        bool const disabled = group == QPalette::Disabled;
        QColor const text = disabled ? grey : QColor(Qt::black);
        colours.setColor(group, QPalette::Window, QColor(0xeb, 0xe9, 0xed));
        colours.setColor(group, QPalette::Base, Qt::white);
        colours.setColor(group, QPalette::AlternateBase, QColor(0xf4, 0xf3, 0xf6));
        colours.setColor(group, QPalette::Button, QColor(0xf4, 0xf3, 0xf6));
        colours.setColor(group, QPalette::WindowText, text);
        colours.setColor(group, QPalette::Text, text);
        colours.setColor(group, QPalette::ButtonText, text);
        colours.setColor(group, QPalette::PlaceholderText, grey);
        colours.setColor(group, QPalette::Highlight, QColor(0x2b, 0x62, 0xb0));
        colours.setColor(group, QPalette::HighlightedText, Qt::white);
    }
    return colours;
}

} // namespace

PopupWindow::PopupWindow(QString const& name, Units const& units)
    : QWidget(nullptr, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      Label2(words("Message from"), this), messagefrom(words("Sender"), this), message(this),
      Check1(units, this), Label1(words("Response"), this), temp(this),
      Command2(Look::primary, units, this), fwd(Look::plain, units, this),
      printbtn(Look::plain, units, this), Label3(words("Sent to"), this),
      Command1(Look::plain, units, this), beensent(words("Sent note"), this), units_(units)
{
    setObjectName(name);
    setWindowIcon(window_icon(words("popup")));
    setFixedSize(units.pixels(client_width), units.pixels(client_height));
    setPalette(light_palette());
    setFont(QFont(words("Arial"), text_points));
    add_quick_buttons();
    name_parts();
    place_parts();
    dress_parts();
    order_tabs();
}

void PopupWindow::add_quick_buttons()
{
    for (std::size_t index = 0; index < qb.size(); ++index) {
        auto const number = index + forms::Popup::first_button;
        qb[index] = new Button(Look::plain, units_, this);
        qb[index]->setObjectName(QStringLiteral("qb(%1)").arg(number));
        qb[index]->set_spare_name(QStringLiteral("Quick answer %1").arg(index + 1));
    }
}

void PopupWindow::name_parts()
{
    for (auto const& [part, name] : std::initializer_list<std::pair<QWidget*, char const*>>{
             {&Label2, "Label2"},
             {&messagefrom, "messagefrom"},
             {&message, "message"},
             {&Check1, "Check1"},
             {&Label1, "Label1"},
             {&temp, "temp"},
             {&Command2, "Command2"},
             {&fwd, "fwd"},
             {&printbtn, "printbtn"},
             {&Label3, "Label3"},
             {&Command1, "Command1"},
             {&beensent, "beensent"},
         }) {
        part->setObjectName(words(name));
    }
    message.setAccessibleName(words("Message"));
    temp.setAccessibleName(words("Response"));
}

void PopupWindow::place_parts()
{
    auto const put = [this](QWidget& part, Place const& place) {
        part.setGeometry(units_.pixels(place.left), units_.pixels(place.top),
                         units_.pixels(place.width), units_.pixels(place.height));
    };
    put(Label2, {90, 30, 1290, 270});
    put(messagefrom, {1365, 30, 2745, 285});
    put(message, {90, 315, 5055, 2040});
    put(Check1, {3915, 2415, 1185, 255});
    put(Label1, {90, 2430, 3270, 300});
    put(temp, {97, 2745, 5055, 1035});
    put(Command2, {3795, 3870, 1350, 375});
    put(fwd, {1935, 3885, 1350, 375});
    for (std::size_t index = 0; index < qb.size(); ++index) {
        put(*qb[index], {button_lefts[index % button_lefts.size()],
                         button_tops[index / button_lefts.size()], button_width, button_height});
    }
    put(Label3, {90, 6300, 1035, 195});
    put(printbtn, {75, 6360, 1350, 375});
    put(Command1, {3810, 6360, 1350, 375});
    put(beensent, {75, 3885, 1845, 375});
    Label3.raise();
    Label3.setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PopupWindow::dress_parts()
{
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSize(text_points + 1);
    messagefrom.setFont(bold);
    QPalette red = palette();
    red.setColor(QPalette::WindowText, Qt::red);
    messagefrom.setPalette(red);
    for (LineLabel* const label : {&Label2, &messagefrom, &Label1, &Label3}) {
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    message.setReadOnly(true);
    message.setUndoRedoEnabled(false);
    message.setTabChangesFocus(true);
    message.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    temp.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void PopupWindow::order_tabs()
{
    QList<QWidget*> order{&temp, &Command2, &fwd};
    for (Button* const button : qb) {
        order.append(button);
    }
    order.append({&printbtn, &Command1, &message, &Check1});
    for (qsizetype next = 1; next < order.size(); ++next) {
        setTabOrder(order[next - 1], order[next]);
    }
}

void PopupWindow::make_room_for_note(bool note)
{
    printbtn.set_free_top(note ? units_.pixels(note_overlap) : 0);
}

} // namespace qt
