#include "keyboard.h"

#include "finding.h"
#include "later.h"
#include "refusal.h"

#include <QJsonArray>
#include <QPointer>
#include <QTest>
#include <QWindow>

namespace driver {
namespace {

// The toolkit's own entry point for keys of the window system. QTest's functions around it run the
// event loop as well, so that what is asked for later would come in between.
void post_key(QPointer<QWindow> const& window, QEvent::Type type, int key, QString const& text,
              Qt::KeyboardModifiers held)
{
    later([=] {
        if (window) {
            qt_handleKeyEvent(window, type, key, held, text);
        }
    });
}

void send_key(QPointer<QWindow> const& window, int key, QString const& text,
              Qt::KeyboardModifiers held)
{
    static std::pair<Qt::KeyboardModifier, Qt::Key> const holders[] = {
        {Qt::ShiftModifier, Qt::Key_Shift},
        {Qt::ControlModifier, Qt::Key_Control},
        {Qt::AltModifier, Qt::Key_Alt},
    };
    for (auto const& [modifier, holder] : holders) {
        if (held.testFlag(modifier)) {
            post_key(window, QEvent::KeyPress, holder, {}, {});
        }
    }
    post_key(window, QEvent::KeyPress, key, text, held);
    post_key(window, QEvent::KeyRelease, key, text, held);
    for (auto const& [modifier, holder] : holders) {
        if (held.testFlag(modifier)) {
            post_key(window, QEvent::KeyRelease, holder, {}, held);
        }
    }
}

void send_character(QPointer<QWindow> const& window, QChar letter)
{
    if (letter == '\n') {
        send_key(window, Qt::Key_Return, "\r", {});
        return;
    }
    auto const code = letter.unicode();
    int const key =
        code < 128 ? int{QTest::asciiToKey(static_cast<char>(code))} : letter.toUpper().unicode();
    send_key(window, key, letter, letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
}

} // namespace

Qt::KeyboardModifiers modifiers_of(QJsonObject const& command)
{
    Qt::KeyboardModifiers held;
    for (auto const& name : command.value("modifiers").toArray()) {
        if (name == "ctrl") {
            held |= Qt::ControlModifier;
        } else if (name == "shift") {
            held |= Qt::ShiftModifier;
        } else if (name == "alt") {
            held |= Qt::AltModifier;
        } else {
            throw Refusal("unknown modifier " + name.toString());
        }
    }
    return held;
}

void press_key(QWidget& widget, QJsonObject const& command)
{
    must_be_usable(widget);
    auto const sequence = QKeySequence::fromString(command.value("key").toString());
    if (sequence.isEmpty()) {
        throw Refusal("unknown key " + command.value("key").toString());
    }
    auto const key = sequence[0].key();
    auto const text = key == Qt::Key_Return ? QString("\r") : QString();
    send_key(widget.window()->windowHandle(), key, text, modifiers_of(command));
}

void type_text(QWidget& widget, QString const& text)
{
    must_be_usable(widget);
    auto const* const focus = widget.window()->focusWidget();
    if (focus != &widget) {
        auto const holder = focus ? focus->objectName() : QString("nothing");
        throw Refusal("\"" + widget.objectName() + "\" has not the keyboard, " + holder +
                      " has it");
    }
    for (auto const letter : text) {
        send_character(widget.window()->windowHandle(), letter);
    }
}

} // namespace driver
