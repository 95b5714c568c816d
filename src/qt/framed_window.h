#pragma once

#include "qt/units.h"

#include <QString>
#include <QWidget>

namespace qt {

/// A window in the desktop's frame and in the program's colours. Escape asks it to close, as its
/// frame does.
class FramedWindow : public QWidget {
public:
    enum class Kind {
        window,
        dialog, ///< stays in front of its owner
    };

    /// `units` must outlive the window.
    FramedWindow(QString const& name, Kind kind, Units const& units, QWidget* owner);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// So many pixels of a screen with 96 dots per inch, on this screen.
    [[nodiscard]] int size_of(qreal pixels) const;
    [[nodiscard]] Units const& units() const { return units_; }
    /// Everything that is seen stands on the body: boxes and menus that the window owns look like
    /// the desktop's.
    [[nodiscard]] QWidget& body() { return body_; }

private:
    void restyle();

    Units const& units_;
    QWidget body_{this};
};

} // namespace qt
