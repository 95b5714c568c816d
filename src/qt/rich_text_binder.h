#pragma once

#include "controls/text_box.h"
#include "qt/codec.h"
#include "qt/shown_text.h"

#include <QObject>
#include <QTextEdit>

#include <vector>

namespace qt {

/// Ties a text in colours, which nobody types in, to its model.
class RichTextBinder : public QObject {
public:
    /// All must outlive the binder.
    RichTextBinder(controls::RichText& model, QTextEdit& widget, Codec const& codec);

    void show();

private:
    void show_text();
    void paint();
    void show_selection();
    void take_selection();

    controls::RichText& model_;
    QTextEdit& widget_;
    Codec const& codec_;
    ShownText shown_;
    std::vector<controls::RichText::Run> painted_;
    bool showing_ = false;
};

} // namespace qt
