#include "qt/message_edit.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocumentFragment>

namespace qt {

namespace {

constexpr int shift_mask = 1;
constexpr int alt_mask = 4;

bool is_enter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// The code of a key that the logic hears of; 0 for any other.
int code_of(int key)
{
    if (is_enter(key)) {
        return controls::Key::enter;
    }
    bool const function_key = key >= Qt::Key_F1 && key <= Qt::Key_F12;
    return function_key ? controls::Key::f1 + key - Qt::Key_F1 : 0;
}

int mask_of(Qt::KeyboardModifiers held)
{
    return (held.testFlag(Qt::ShiftModifier) ? shift_mask : 0) |
           (held.testFlag(Qt::ControlModifier) ? controls::Key::ctrl : 0) |
           (held.testFlag(Qt::AltModifier) ? alt_mask : 0);
}

QString plain(QString const& html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText();
}

} // namespace

MessageEdit::MessageEdit(QWidget* parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
}

QString MessageEdit::to_put(QString const& words)
{
    QTextCursor cursor = textCursor();
    bool const mark = !words.isEmpty() && words.front().isMark();
    if (!mark || cursor.hasSelection() || cursor.atBlockStart()) {
        return keepable(words);
    }
    // A mark is one with the letter that it comes behind: both are put in that letter's place.
    cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    return keepable(cursor.selectedText() + words);
}

void MessageEdit::keyPressEvent(QKeyEvent* event)
{
    held_.insert(event->key());
    if (is_enter(event->key())) {
        QKeyEvent line_break(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                             event->isAutoRepeat());
        QPlainTextEdit::keyPressEvent(&line_break);
        event->accept();
    } else if (QString const words = to_put(event->text()); words != event->text()) {
        QKeyEvent kept(QEvent::KeyPress, event->key(), event->modifiers(), words,
                       event->isAutoRepeat());
        QPlainTextEdit::keyPressEvent(&kept);
        event->accept();
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
}

void MessageEdit::inputMethodEvent(QInputMethodEvent* event)
{
    QInputMethodEvent kept(event->preeditString(), event->attributes());
    kept.setCommitString(to_put(event->commitString()), event->replacementStart(),
                         event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&kept);
    event->setAccepted(kept.isAccepted());
}

void MessageEdit::keyReleaseEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat()) {
        return;
    }
    bool const pressed_here = held_.remove(event->key());
    int const code = code_of(event->key());
    if (pressed_here && code != 0) {
        Q_EMIT released({code, mask_of(event->modifiers())});
    } else {
        QPlainTextEdit::keyReleaseEvent(event);
    }
}

void MessageEdit::focusOutEvent(QFocusEvent* event)
{
    held_.clear();
    QPlainTextEdit::focusOutEvent(event);
}

void MessageEdit::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    ensureCursorVisible();
}

bool MessageEdit::canInsertFromMimeData(QMimeData const* source) const
{
    return source->hasText() || source->hasHtml();
}

void MessageEdit::insertFromMimeData(QMimeData const* source)
{
    insertPlainText(to_put(source->hasText() ? source->text() : plain(source->html())));
    ensureCursorVisible();
}

} // namespace qt
