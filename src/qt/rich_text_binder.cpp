#include "qt/rich_text_binder.h"

#include "qt/bind.h"

#include <QScopedValueRollback>
#include <QTextCursor>

namespace qt {

namespace {

void select(QTextCursor& cursor, qsizetype start, qsizetype end)
{
    cursor.setPosition(static_cast<int>(start));
    cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
}

} // namespace

RichTextBinder::RichTextBinder(controls::RichText& model, QTextEdit& widget, Codec const& codec)
    : model_(model), widget_(widget), codec_(codec)
{
    connect(&widget, &QTextEdit::cursorPositionChanged, this, &RichTextBinder::take_selection);
    connect(&widget, &QTextEdit::selectionChanged, this, &RichTextBinder::take_selection);
    model.repaint.attach([this] {
        show();
        widget_.repaint();
    });
}

void RichTextBinder::show()
{
    QScopedValueRollback const guard(showing_, true);
    show_visible(widget_, model_.visible);
    show_tip(widget_, codec_.to_unicode(model_.tool_tip));
    show_font_size(widget_, model_.font_size);
    show_text();
    show_selection();
}

void RichTextBinder::show_text()
{
    bool const same_text = shown_.model() == model_.text();
    if (same_text && painted_ == model_.runs()) {
        return;
    }
    if (!same_text) {
        shown_ = ShownText(model_.text(), codec_);
    }
    widget_.setPlainText(shown_.text()); // Takes old colours off as well.
    paint();
}

void RichTextBinder::paint()
{
    QTextCursor cursor(widget_.document());
    cursor.beginEditBlock();
    for (auto const& run : model_.runs()) {
        QTextCharFormat format;
        format.setForeground(colour(run.colour));
        select(cursor, shown_.shown_place(run.start), shown_.shown_place(run.start + run.length));
        cursor.mergeCharFormat(format);
    }
    cursor.endEditBlock();
    painted_ = model_.runs();
}

void RichTextBinder::show_selection()
{
    auto const start = shown_.shown_place(model_.selection_start());
    auto const end = shown_.shown_place(model_.selection_start() + model_.selection_length());
    QTextCursor cursor = widget_.textCursor();
    if (cursor.selectionStart() != start || cursor.selectionEnd() != end) {
        select(cursor, start, end);
        widget_.setTextCursor(cursor);
        widget_.ensureCursorVisible();
    }
}

void RichTextBinder::take_selection()
{
    if (!showing_) {
        QTextCursor const cursor = widget_.textCursor();
        auto const start = shown_.model_place(cursor.selectionStart());
        auto const end = shown_.model_place(cursor.selectionEnd());
        model_.select(start, end - start);
    }
}

} // namespace qt
