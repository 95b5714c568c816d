#pragma once

#include "controls/text_box.h"

#include <QPlainTextEdit>
#include <QSet>

#include <functional>

namespace qt {

/// A box to type plain text in. Enter makes a line break whatever key is held with it, Tab goes to
/// the next control, and what is dropped or pasted comes in as plain text.
class MessageEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit MessageEdit(QWidget* parent);

    /// What of a text can be kept; only that comes in, by whatever way.
    std::function<QString(QString const&)> keepable = [](QString const& words) { return words; };

Q_SIGNALS:
    /// A key came up whose press came to this box as well: a box that Enter has just closed does
    /// not count.
    void released(controls::Key key);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    [[nodiscard]] bool canInsertFromMimeData(QMimeData const* source) const override;
    void insertFromMimeData(QMimeData const* source) override;

private:
    /// What comes in for these words, in the place of what is selected.
    [[nodiscard]] QString to_put(QString const& words);

    QSet<int> held_;
};

} // namespace qt
