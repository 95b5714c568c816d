#include "qt/text_box_binder.h"

#include "qt/bind.h"

#include <QScopedValueRollback>
#include <QTextCursor>

namespace qt {

QString document_text(QTextDocument const& document)
{
    // toPlainText() would turn no-break spaces into blanks.
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text;
}

TextBoxBinder::TextBoxBinder(controls::TextBox& model, MessageEdit& widget, Codec const& codec)
    : model_(model), widget_(widget), codec_(codec)
{
    // A character that the set lacks becomes its `?` before it comes in, so that undo takes it
    // back.
    widget.keepable = [&codec](QString const& words) {
        return codec.to_unicode(codec.from_unicode(words));
    };
    connect(&widget, &QPlainTextEdit::textChanged, this, &TextBoxBinder::edited);
    connect(&widget, &QPlainTextEdit::cursorPositionChanged, this, &TextBoxBinder::caret_moved);
    connect(&widget, &QPlainTextEdit::selectionChanged, this, &TextBoxBinder::caret_moved);
    connect(&widget, &MessageEdit::released, this, [this](controls::Key key) {
        if (model_.key_up) {
            model_.key_up(key);
        }
    });
}

void TextBoxBinder::show()
{
    QScopedValueRollback const guard(showing_, true);
    show_font_size(widget_, model_.font_size);
    show_text();
    show_selection();
}

void TextBoxBinder::show_text()
{
    if (shown_.model() == model_.text()) {
        return;
    }
    shown_ = ShownText(model_.text(), codec_);
    put_shown_text();
}

void TextBoxBinder::put_shown_text()
{
    if (document_text(*widget_.document()) != shown_.text()) {
        QScopedValueRollback const guard(showing_, true);
        widget_.setPlainText(shown_.text());
    }
}

void TextBoxBinder::show_selection()
{
    auto const start = shown_.shown_place(model_.selection_start());
    auto const end = shown_.shown_place(model_.selection_start() + model_.selection_length());
    QTextCursor cursor = widget_.textCursor();
    if (cursor.selectionStart() != start || cursor.selectionEnd() != end) {
        cursor.setPosition(static_cast<int>(start));
        cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
        widget_.setTextCursor(cursor);
    }
}

void TextBoxBinder::edited()
{
    if (showing_) {
        return;
    }
    auto const change = shown_.change_to(document_text(*widget_.document()));
    auto const bytes = codec_.from_unicode(change.words);
    shown_ = ShownText(shown_.changed(change, bytes), codec_);
    put_shown_text(); // A CR and an LF that have come together are one line end.
    model_.set_text(shown_.model());
    if (model_.text() == shown_.model()) {
        take_selection();
    }
}

void TextBoxBinder::caret_moved()
{
    // In front of an edit the caret tells where it will be in a text that is not told yet.
    if (!showing_ && document_text(*widget_.document()) == shown_.text()) {
        take_selection();
    }
}

void TextBoxBinder::take_selection()
{
    QTextCursor const cursor = widget_.textCursor();
    auto const start = shown_.model_place(cursor.selectionStart());
    auto const end = shown_.model_place(cursor.selectionEnd());
    model_.select(start, end - start);
}

} // namespace qt
