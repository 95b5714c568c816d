#include "qt/bind.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTabWidget>
#include <QTextDocument>

#include <string_view>

namespace qt {

namespace {

/// The head of a text that a button or a tip can show at all; nobody is to wait for the rest.
std::string_view head_of(std::string const& text)
{
    constexpr std::size_t longest = 1000;
    return std::string_view(text).substr(0, longest);
}

Qt::CheckState check_state(int value)
{
    switch (value) {
    case 0:
        return Qt::Unchecked;
    case 1:
        return Qt::Checked;
    default:
        return Qt::PartiallyChecked;
    }
}

} // namespace

QColor colour(controls::Colour const& model)
{
    return {model.red, model.green, model.blue};
}

void show_visible(QWidget& widget, bool visible)
{
    if (widget.isHidden() == visible) {
        widget.setVisible(visible);
    }
}

void show_enabled(QWidget& widget, bool enabled)
{
    if (widget.isEnabled() != enabled) {
        widget.setEnabled(enabled);
    }
}

void show_tip(QWidget& widget, QString const& tip)
{
    bool const markup = Qt::mightBeRichText(tip);
    if (auto const plain = markup ? QStringLiteral("<qt>%1</qt>").arg(tip.toHtmlEscaped()) : tip;
        widget.toolTip() != plain) {
        widget.setToolTip(plain);
    }
}

void show_font_size(QWidget& widget, int points)
{
    if (widget.font().pointSize() != points && points > 0) {
        QFont font = widget.font();
        font.setPointSize(points);
        widget.setFont(font);
    }
}

void show(QLabel& widget, controls::Label const& model, Codec const& codec)
{
    if (QString const caption = codec.to_unicode(model.caption()); widget.text() != caption) {
        widget.setText(caption);
        widget.setAccessibleName(caption.isEmpty() ? widget.accessibleDescription() : caption);
    }
    if (!model.tool_tip.empty()) {
        show_tip(widget, codec.to_unicode(model.tool_tip));
    }
    show_visible(widget, model.visible);
}

void show(Button& widget, controls::Button const& model, Codec const& codec)
{
    widget.set_caption(codec.to_unicode(head_of(model.caption)));
    widget.set_tip(codec.to_unicode(head_of(model.tool_tip)));
    show_enabled(widget, model.enabled);
    show_visible(widget, model.visible);
}

void show_colours(Button& widget, controls::Button const& model)
{
    widget.set_colours(colour(model.background), colour(model.text_colour));
}

void show(QCheckBox& widget, controls::CheckBox const& model, Codec const& codec)
{
    if (auto const state = check_state(model.value()); widget.checkState() != state) {
        widget.setCheckState(state);
    }
    if (QString const caption = codec.to_unicode(model.caption); widget.text() != caption) {
        widget.setText(caption);
        widget.setAccessibleName(caption);
    }
    show_tip(widget, codec.to_unicode(model.tool_tip));
    show_enabled(widget, model.enabled);
    show_visible(widget, model.visible);
}

void show(QProgressBar& widget, controls::ProgressBar const& model)
{
    if (widget.value() != model.value()) {
        widget.setValue(model.value());
    }
}

void show(QTabWidget& widget, controls::Tabs const& model)
{
    if (widget.currentIndex() != model.tab()) {
        widget.setCurrentIndex(model.tab());
    }
}

void show(QComboBox& widget, controls::Label const& model, Codec const& codec)
{
    QString const chosen = codec.to_unicode(model.caption());
    if (int const index = widget.findText(chosen); widget.currentIndex() != index) {
        widget.setCurrentIndex(index);
    }
    if (widget.placeholderText() != chosen) {
        widget.setPlaceholderText(chosen);
    }
}

void show(QGroupBox& widget, controls::Label const& model, Codec const& codec)
{
    QString const title = codec.to_unicode(model.caption());
    // In a title a "&" is a letter like any other.
    if (QString escaped = title; widget.title() != escaped.replace(u'&', QStringLiteral("&&"))) {
        widget.setTitle(escaped);
        widget.setAccessibleName(title);
    }
}

void show(QLineEdit& widget, std::string const& text, Codec const& codec)
{
    if (QString const shown = codec.to_unicode(text); widget.text() != shown) {
        widget.setText(shown);
        show_tip(widget, shown);
    }
}

void show_lines(QLabel& widget, controls::Label const& model, Codec const& codec)
{
    QString lines = codec.to_unicode(model.caption());
    if (widget.text() != lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))) {
        widget.setText(lines);
        widget.setAccessibleName(lines);
    }
}

} // namespace qt
