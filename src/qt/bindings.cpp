#include "qt/bindings.h"

#include "qt/bind.h"
#include "qt/focus_binder.h"
#include "qt/line_edit_binder.h"
#include "qt/list_binder.h"
#include "qt/rich_text_binder.h"
#include "qt/table_binder.h"
#include "qt/text_box_binder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QTabBar>
#include <QTabWidget>

#include <memory>

namespace qt {

void Bindings::bind(controls::Label& model, QLabel& widget)
{
    shows_.push_back([this, &model, &widget] { qt::show(widget, model, codec_); });
    model.repaint.attach([this, &model, &widget] {
        qt::show(widget, model, codec_);
        widget.repaint();
    });
}

void Bindings::bind(controls::Label& model, QFrame& frame)
{
    shows_.push_back([&model, &frame] { show_visible(frame, model.visible); });
}

void Bindings::bind(controls::Button& model, Button& widget)
{
    shows_.push_back([this, &model, &widget] { qt::show(widget, model, codec_); });
    connect(&widget, &QPushButton::clicked, this, [&model] { model.click(); });
    connect(&widget, &Button::pointed, this, [this, &model, &widget] {
        model.pointed.run();
        qt::show(widget, model, codec_);
    });
    widget.installEventFilter(this);
}

void Bindings::bind_coloured(controls::Button& model, Button& widget)
{
    bind(model, widget);
    shows_.push_back([&model, &widget] { show_colours(widget, model); });
}

void Bindings::bind(controls::CheckBox& model, QCheckBox& widget)
{
    shows_.push_back([this, &model, &widget] { qt::show(widget, model, codec_); });
    connect(&widget, &QCheckBox::clicked, this,
            [&model](bool checked) { model.set(checked ? 1 : 0); });
    widget.installEventFilter(this);
}

void Bindings::bind(controls::ProgressBar& model, QProgressBar& widget)
{
    shows_.push_back([&model, &widget] { qt::show(widget, model); });
}

void Bindings::bind(controls::Tabs& model, QTabWidget& widget)
{
    shows_.push_back([&model, &widget] { qt::show(widget, model); });
    connect(&widget, &QTabWidget::currentChanged, this, [&model](int tab) { model.choose(tab); });
    widget.tabBar()->installEventFilter(this);
}

void Bindings::bind(controls::TextBox& model, MessageEdit& widget)
{
    auto const binder = std::make_shared<TextBoxBinder>(model, widget, codec_);
    shows_.push_back([binder] { binder->show(); });
    bind_focus(model.focus, widget);
    widget.viewport()->installEventFilter(this);
}

void Bindings::bind(controls::RichText& model, QTextEdit& widget)
{
    auto const binder = std::make_shared<RichTextBinder>(model, widget, codec_);
    shows_.push_back([binder] { binder->show(); });
}

void Bindings::bind(controls::ListBox& model, QListWidget& widget, std::size_t hidden_tail)
{
    auto const binder = std::make_shared<ListBinder>(model, widget, codec_, hidden_tail);
    shows_.push_back([binder] { binder->show(); });
    bind_focus(model.focus, widget);
    widget.viewport()->installEventFilter(this);
}

void Bindings::bind(controls::TextBox& model, QLineEdit& widget)
{
    auto const binder = std::make_shared<LineEditBinder>(model, widget, codec_);
    shows_.push_back([binder] { binder->show(); });
    bind_focus(model.focus, widget);
}

void Bindings::bind_coloured(controls::TextBox& model, QLineEdit& widget)
{
    bind(model, widget);
    shows_.push_back([&model, &widget] { show_ground(widget, colour(model.background)); });
}

void Bindings::bind(controls::Table& model, QTreeWidget& widget)
{
    auto const binder = std::make_shared<TableBinder>(model, widget, codec_);
    shows_.push_back([binder] { binder->show(); });
    bind_focus(model.focus, widget);
    widget.viewport()->installEventFilter(this);
}

void Bindings::bind(controls::Label& model, QComboBox& widget)
{
    shows_.push_back([this, &model, &widget] { qt::show(widget, model, codec_); });
    connect(&widget, &QComboBox::textActivated, this, [this, &model](QString const& chosen) {
        model.set_caption(codec_.from_unicode(chosen));
    });
    widget.installEventFilter(this);
}

void Bindings::bind(controls::Label& model, QGroupBox& widget)
{
    shows_.push_back([this, &model, &widget] { qt::show(widget, model, codec_); });
}

void Bindings::bind_lines(controls::Label& model, QLabel& widget)
{
    shows_.push_back([this, &model, &widget] { show_lines(widget, model, codec_); });
}

void Bindings::bind(std::string const& text, QLineEdit& widget)
{
    shows_.push_back([this, &text, &widget] { qt::show(widget, text, codec_); });
}

void Bindings::bind_focus(controls::Focus& model, QWidget& widget)
{
    auto const binder = std::make_shared<FocusBinder>(model, widget);
    focuses_.push_back([binder] { binder->show(); });
    widget.installEventFilter(this);
}

void Bindings::show()
{
    for (auto const& show_control : shows_) {
        show_control();
    }
    // The focus comes last: a control that has just been disabled or hidden gives its own away.
    for (auto const& give_focus : focuses_) {
        give_focus();
    }
}

bool Bindings::eventFilter(QObject* widget, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Drop:
        show();
        break;
    default:
        break;
    }
    return QObject::eventFilter(widget, event);
}

} // namespace qt
