#pragma once

#include "qt/icons.h"
#include "qt/units.h"

#include <QColor>
#include <QPushButton>
#include <QString>

class QPainter;

namespace qt {

struct Theme;

/// A push button that draws itself from its palette, the same under every style of the desktop. Its
/// text is its caption letter by letter, also where only a glyph is seen or the caption is too
/// long; then the tool tip tells it.
class Button : public QPushButton {
    Q_OBJECT

public:
    enum class Look {
        plain,
        primary, ///< the one that counts
        flat,    ///< no face until the pointer comes
        closing, ///< flat, and an alarm under the pointer
    };

    Button(Look look, Units const& units, QWidget* parent);

    void set_caption(QString const& caption);
    /// The tip; where there is none, a caption that isn't seen whole stands in.
    void set_tip(QString const& tip);
    /// Drawn instead of the caption, or in front of it on a primary button.
    void set_glyph(QString const& name);
    /// The key that presses the button, small at its edge.
    void set_key(QString const& key);
    /// What a button without a caption is called.
    void set_spare_name(QString const& name);
    void set_colours(QColor const& face, QColor const& text);
    /// Leaves the upper part of the button undrawn.
    void set_free_top(int pixels);

    [[nodiscard]] bool shows_whole_caption() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The pointer has come over the button, or its tool tip is wanted.
    void pointed();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QColor face(Theme const& theme) const;
    [[nodiscard]] QColor ink(Theme const& theme, QColor const& face) const;
    [[nodiscard]] bool only_glyph() const;
    [[nodiscard]] QRect caption_place(QRect place) const;
    [[nodiscard]] QFont key_font() const;
    [[nodiscard]] QFont fitting_font(int wide) const;
    void draw_face(QPainter& painter, Theme const& theme, QColor const& face) const;
    void draw_contents(QPainter& painter, QColor const& ink);
    void draw_key(QPainter& painter, QColor const& ink) const;
    void name_it();

    Look look_;
    Units const& units_;
    Glyph glyph_;
    QString key_;
    QString spare_name_;
    QString tip_;
    bool coloured_ = false;
    int free_top_ = 0;
};

} // namespace qt
