#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace demo {

/// The strip at the lower edge of the screen that tells what happens, and lets the person in front
/// take over or end it.
class Caption : public QWidget {
public:
    Caption();

    void set_scene(QString const& title) { scene_.setText(title); }
    void set_line(QString const& line) { line_.setText(line); }

    /// Lets its buttons be pressed whatever box is in the way. To be called again and again.
    void keep_reachable();

    QPushButton take_over;
    QPushButton close_office;

private:
    void dress();
    void lay_out();
    void place();

    QLabel scene_;
    QLabel line_;
};

} // namespace demo
