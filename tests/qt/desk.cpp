#include "tests/qt/desk.h"

#include <QApplication>
#include <QScreen>

#include <array>
#include <stdexcept>

namespace desk {

namespace {

constexpr std::array captions{
    "Call on 1", "Call on 2",        "Spouse Calling", "Busy?",        "See me", "Lunch?",
    "Ready?",    "Meeting Starting", "X is here",      "Call Holding", "",       ""};
constexpr std::array answers{"OK",         "Take message",
                             "Get number", "Will call back",
                             "At my desk", "On a call",
                             "Yes",        "No",
                             "Thanks",     "",
                             "",           ""};

constexpr controls::Colour yellow{255, 255, 128};
constexpr controls::Colour grey{224, 224, 224};

void fill(controls::Button& button, char const* caption)
{
    button.caption = caption;
    button.enabled = !button.caption.empty();
    button.background = button.enabled ? yellow : grey;
}

} // namespace

QString words(char const* text)
{
    return QString::fromUtf8(text);
}

QPalette dark_palette()
{
    QColor const light(0xdf, 0xe1, 0xe5);
    QPalette dark(QColor(0x3c, 0x3f, 0x43), QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    dark.setColor(QPalette::Text, light);
    dark.setColor(QPalette::WindowText, light);
    dark.setColor(QPalette::ButtonText, light);
    dark.setColor(QPalette::Highlight, QColor(0x3d, 0x7e, 0xd8));
    return dark;
}

void settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

void type(QWidget& widget, char const* text)
{
    for (QChar const letter : words(text)) {
        if (letter == u'\n') {
            QTest::keyClick(&widget, Qt::Key_Return);
        } else {
            QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(letter), {});
        }
    }
}

void click(QWidget& widget)
{
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void click_row(QListWidget& list, int row, Qt::KeyboardModifiers held)
{
    QPoint const place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, held, place);
}

qreal Desk::screen_dots_per_inch()
{
    return QGuiApplication::primaryScreen()->logicalDotsPerInch();
}

MainDesk::MainDesk()
{
    form.title.set_caption("Vexlo Instant Messaging ");
    form.entlabel1.set_caption("Press Ctrl+Enter to Send");
    for (char const* name : {"Alice Meyer", "Bob", "Carl Dunn"}) {
        form.allusers.add(name);
    }
    for (std::size_t number = 1; number < form.qb.size(); ++number) {
        fill(form.qb[number], captions[number - 1]);
    }
    form.dissmissall.enabled = true;
    form.window.show();
    show();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error("the window does not become active");
    }
    show();
}

void MainDesk::show()
{
    binder.show();
    settle();
}

PopupDesk::PopupDesk()
{
    form.window.caption = "Anna Berg Msg 10:15 am";
    form.messagefrom.set_caption("Anna Berg");
    form.message.set_text("ALICE> Ready?\r\nANNA BERG> In a <b>minute</b>.");
    for (std::size_t index = 0; index < form.qb.size(); ++index) {
        fill(form.qb[index], answers[index]);
    }
    form.window.show();
    show();
}

void PopupDesk::show()
{
    binder.show();
    settle();
}

void PopupDesk::activate()
{
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error("the window does not become active");
    }
    show();
}

} // namespace desk
