#pragma once

#include "controls/text_box.h"
#include "qt/codec.h"
#include "qt/message_edit.h"
#include "qt/shown_text.h"

#include <QObject>

namespace qt {

/// The text of a widget's document, character for character, with '\n' as line end.
[[nodiscard]] QString document_text(QTextDocument const& document);

/// Ties a box that a person types in to its model: text, caret and selection, keys, font size.
class TextBoxBinder : public QObject {
public:
    /// All must outlive the binder.
    TextBoxBinder(controls::TextBox& model, MessageEdit& widget, Codec const& codec);

    void show();

private:
    void edited();
    void caret_moved();
    void show_text();
    void put_shown_text();
    void show_selection();
    void take_selection();

    controls::TextBox& model_;
    MessageEdit& widget_;
    Codec const& codec_;
    ShownText shown_;
    bool showing_ = false;
};

} // namespace qt
