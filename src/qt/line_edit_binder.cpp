#include "qt/line_edit_binder.h"

#include "qt/bind.h"
#include "qt/style.h"

namespace qt {

LineEditBinder::LineEditBinder(controls::TextBox& model, QLineEdit& widget, Codec const& codec)
    : model_(model), widget_(widget), codec_(codec)
{
    connect(&widget, &QLineEdit::textEdited, this, &LineEditBinder::edited);
}

void LineEditBinder::show()
{
    show_visible(widget_, model_.visible);
    show_enabled(widget_, model_.enabled);
    show_tip(widget_, codec_.to_unicode(model_.tool_tip));
    if (shown_.model() != model_.text()) {
        shown_ = ShownText(model_.text(), codec_);
    }
    show_text();
}

void LineEditBinder::show_text()
{
    // A line takes so many letters and no more: what it cannot hold is not asked for again and
    // again.
    if (auto const line = shown_.text().left(widget_.maxLength()); widget_.text() != line) {
        // In front of the caret, letters may have come together.
        auto const before = codec_.from_unicode(widget_.text().left(widget_.cursorPosition()));
        widget_.setText(line);
        widget_.setCursorPosition(static_cast<int>(before.size()));
    }
}

void show_ground(QLineEdit& widget, QColor const& ground)
{
    QString const sheet = QStringLiteral("QLineEdit { background: %1; color: %2; }")
                              .arg(ground.name(), legible(Qt::black, ground).name());
    if (widget.styleSheet() != sheet) {
        widget.setStyleSheet(sheet);
    }
}

void LineEditBinder::edited(QString const& now)
{
    // What the line cannot hold stays behind what the person wrote.
    auto const change = shown_.change_to(now + shown_.text().mid(widget_.maxLength()));
    auto const bytes = codec_.from_unicode(change.words);
    shown_ = ShownText(shown_.changed(change, bytes), codec_);
    show_text(); // What the character set lacks has become a question mark.
    model_.set_text(shown_.model());
}

} // namespace qt
