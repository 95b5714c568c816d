#pragma once

#include <QLabel>

#include <functional>

namespace qt {

/// A label of one line in plain text. What doesn't fit ends in an ellipsis, and the tool tip has it
/// whole.
class LineLabel : public QLabel {
public:
    /// `purpose` is what the label is for; it is called so while it is empty.
    LineLabel(QString const& purpose, QWidget* parent);

    /// An empty label takes no room.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Where there is one, a click on the label runs it.
    std::function<void()> clicked;
    /// Tab comes here, and Enter is a click.
    void be_link();

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace qt
