#pragma once

#include "qt/units.h"

#include <QProgressBar>
#include <QWidget>

namespace qt {

/// What is seen while the program starts.
class SplashWindow : public QWidget {
public:
    /// `units` must outlive the window.
    explicit SplashWindow(Units const& units);

private:
    QWidget body_{this};

public:
    QProgressBar ProgressBar1{&body_};

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void lay_out();
    void restyle();

    Units const& units_;
};

} // namespace qt
