#pragma once

#include "controls/basic.h"
#include "controls/list_box.h"
#include "controls/table.h"
#include "controls/text_box.h"
#include "qt/button.h"
#include "qt/codec.h"
#include "qt/message_edit.h"

#include <QObject>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QTabWidget;
class QTextEdit;
class QTreeWidget;

namespace qt {

/// The controls of one window, each tied to its model: what a person does goes to the model, and
/// show() makes the widgets equal to it.
///
/// Several events may come between two waits of the event loop, so the widgets are made equal in
/// front of each key and click as well: nobody types into a text, or clicks on a row, that is gone.
class Bindings : public QObject {
public:
    /// `codec`, and all models and widgets, must outlive the bindings.
    explicit Bindings(Codec const& codec) : codec_(codec) {}

    void bind(controls::Label& model, QLabel& widget);
    void bind(controls::Label& model, QFrame& frame);
    void bind(controls::Button& model, Button& widget);
    /// A button that shows the colours of its model.
    void bind_coloured(controls::Button& model, Button& widget);
    void bind(controls::CheckBox& model, QCheckBox& widget);
    void bind(controls::ProgressBar& model, QProgressBar& widget);
    void bind(controls::Tabs& model, QTabWidget& widget);
    void bind(controls::TextBox& model, MessageEdit& widget);
    void bind(controls::RichText& model, QTextEdit& widget);
    void bind(controls::ListBox& model, QListWidget& widget, std::size_t hidden_tail = 0);
    void bind(controls::TextBox& model, QLineEdit& widget);
    /// A box that shows the colour of its model.
    void bind_coloured(controls::TextBox& model, QLineEdit& widget);
    void bind(controls::Table& model, QTreeWidget& widget);
    /// A label whose caption is chosen from a list.
    void bind(controls::Label& model, QComboBox& widget);
    /// The title of a group of controls.
    void bind(controls::Label& model, QGroupBox& widget);
    /// A label of several lines.
    void bind_lines(controls::Label& model, QLabel& widget);
    /// A plain text, which nobody edits.
    void bind(std::string const& text, QLineEdit& widget);

    void show();

protected:
    bool eventFilter(QObject* widget, QEvent* event) override;

private:
    void bind_focus(controls::Focus& model, QWidget& widget);

    Codec const& codec_;
    std::vector<std::function<void()>> shows_;
    std::vector<std::function<void()>> focuses_;
};

} // namespace qt
