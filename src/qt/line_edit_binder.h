#pragma once

#include "controls/text_box.h"
#include "qt/codec.h"
#include "qt/shown_text.h"

#include <QColor>
#include <QLineEdit>
#include <QObject>

namespace qt {

/// Ties a box of one line, which a person types in, to its model.
class LineEditBinder : public QObject {
public:
    /// All must outlive the binder.
    LineEditBinder(controls::TextBox& model, QLineEdit& widget, Codec const& codec);

    void show();

private:
    void edited(QString const& now);
    void show_text();

    controls::TextBox& model_;
    QLineEdit& widget_;
    Codec const& codec_;
    ShownText shown_;
};

/// Colours the box; its text stays legible.
void show_ground(QLineEdit& widget, QColor const& ground);

} // namespace qt
